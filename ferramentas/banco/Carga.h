// Rows of CSV files on their way into one table of the store.
#pragma once

#include "ArquivoCsv.h"
#include "Esquema.h"
#include "IniNovo.h"
#include "Preparado.h"
#include "Regras.h"

#include <cstdint>
#include <optional>
#include <QStringList>
#include <vector>

namespace banco {

/// The bad lines of all files, the first of them in words.
class Faltas {
public:
    static constexpr qint64 kDitas = 20;

    void Junta(const QString &arquivo, qint64 linha, const QString &falta);
    [[nodiscard]] bool Houve() const { return m_quantas > 0; }
    /// Those in words, and how many more there are.
    [[nodiscard]] QStringList EmPalavras() const;

private:
    qint64 m_quantas = 0;
    QStringList m_ditas;
};

/// The keys that a table holds and those that come, with the line that each came from. Lies in a temporary
/// table of the connection, so that a long log does not fill the memory.
class ChavesVistas {
public:
    /// @throws SQLite::Exception
    ChavesVistas(SQLite::Database &loja, const Tabela &tabela, std::size_t largura);

    struct Origem {
        int arquivo = -1; ///< -1: the row was in the store before
        qint64 linha = 0;
    };
    /// Takes a key. @return where it came from before, nothing when it is new. @throws SQLite::Exception
    std::optional<Origem> Junta(std::int64_t chave, const Origem &origem);

private:
    SQLite::Database &m_loja;
    Preparado m_insercao;
    Preparado m_busca;
};

class Carga {
public:
    /// @throws SQLite::Exception when the store does not have the table
    Carga(SQLite::Database &loja, const Tabela &tabela, Faltas &faltas);

    /// Reads a whole file. Rows are added as long as no line of any file was bad; reading goes on to name the
    /// others. @throws RuntimeError when the file cannot be read; SQLite::Exception
    void Le(ArquivoCsv &arquivo);

    [[nodiscard]] const Tabela &DaTabela() const { return m_tabela; }
    [[nodiscard]] qint64 Linhas() const { return m_linhas; }
    [[nodiscard]] qint64 Completados() const { return m_regras.Completados(); }
    /// What QX70.INI should hold of the banks that came.
    [[nodiscard]] const std::vector<ChaveDoFormato> &Formatos() const { return m_formatos; }

private:
    bool LeCabecalho(ArquivoCsv &arquivo);
    [[nodiscard]] QString LigaCampo(const ArquivoCsv &arquivo, std::string_view nome);
    [[nodiscard]] QStringList LeLinha(const ArquivoCsv &arquivo, const RegistroCsv &registro);
    [[nodiscard]] QStringList Decodifica(const ArquivoCsv &arquivo, const RegistroCsv &registro);
    [[nodiscard]] QString ConfereChave(qint64 linhaDoArquivo);
    [[nodiscard]] QString ConfereOrdem(std::int64_t chave);
    void Grava();
    void GuardaFormato();

    SQLite::Database &m_loja;
    const Tabela &m_tabela;
    Faltas &m_faltas;
    RegrasDaTabela m_regras;
    ChavesVistas m_vistas;
    Preparado m_insercao;
    bool m_emOrdem;               ///< keys must grow from row to row
    std::int64_t m_anterior = -1; ///< key of the row before, -1 for none
    bool m_anteriorDaLoja = true;
    QStringList m_arquivos;             ///< those read so far
    std::vector<std::size_t> m_lugares; ///< of the fields of the file in the row
    Linha m_linha;
    qint64 m_linhas = 0;
    std::vector<ChaveDoFormato> m_formatos;
};

} // namespace banco
