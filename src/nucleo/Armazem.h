// The store as the screens use it: opened and closed around each piece of work, one dynaset a table.
#pragma once

#include "nucleo/Consultas.h"
#include "nucleo/Mensagens.h"
#include "plataforma/jet/Database.h"
#include "plataforma/jet/Dynaset.h"

#include <map>
#include <memory>
#include <QString>

namespace nucleo {

inline constexpr int kSemBanco = -2; ///< answer of AbreBanco when the store could not be opened

/// Lookups replace the dynaset of their table, so the last query on a table is its current set.
class Armazem {
public:
    Armazem(const QString &caminhoApp, const QString &arquivoDados, Mensagens &mensagens);
    ~Armazem();

    /// Goes to the application folder, opens the store and, for each flag of 1, a dynaset over the whole
    /// table.
    /// @return kSemBanco on any failure (a lock failure is told to the operator first), else 0
    int AbreBanco(int bancos, int favorecidos, int cidades, int log, int transferencia);
    /// Closes the dynasets flagged. There is no flag for Transferencia: its screen closes it itself. Never
    /// fails.
    void FechaBanco(int bancos, int favorecidos, int cidades, int log);

    /// Replaces the table's dynaset by the rows with that key (all rows when it is empty).
    /// @return 1 when there are rows, else 0
    /// @throws RuntimeError when the store is not open or the query is refused
    int BuscaPorCodigo(const QString &chave, int tabela);
    /// Replaces the table's dynaset by the rows that begin with the text: the search of the registers.
    /// @throws RuntimeError 3075 when the engine refuses what was typed
    void FiltraRegistros(const QString &texto, int tabela);
    /// The same for the search of the popup, which then fills its list.
    void PesquisaRegistros(const QString &texto, int tabela);
    /// Replaces the table's dynaset by the rows of a query text.
    /// @throws RuntimeError 3420 when the store is not open; 3075 when the engine refuses the text
    void AbreConsulta(const QString &consulta, int tabela) { Abre(tabela, consulta); }
    /// Name of a bank, or "Inexistente".
    QString NomeBancoPorCodigo(const QString &codigo);
    /// Name of a city. @throws RuntimeError 3021 when there is none: a miss is not tested for
    QString NomeCidadePorCodigo(const QString &codigo);
    /// Name of a payee, empty when there is none.
    QString NomeFavorecidoPorCodigo(const QString &codigo);

    /// The current set of a table. @throws RuntimeError 3420 when none is open
    plataforma::Dynaset &Conjunto(int tabela);
    [[nodiscard]] bool Aberto(int tabela) const { return m_conjuntos.count(tabela) > 0; }
    void FechaConjunto(int tabela) { m_conjuntos.erase(tabela); }

    /// Stores a run of writes together. A group that is left without Fecha, because a write failed, is
    /// undone.
    class Lote {
    public:
        /// @throws RuntimeError 3420 the store is not open; 3050; 3051
        explicit Lote(Armazem &armazem);
        ~Lote();
        Lote(const Lote &) = delete;
        Lote &operator=(const Lote &) = delete;
        /// Stores what was written so far; the object may go on with the next run after Abre.
        /// @throws RuntimeError 3050; 3051
        void Fecha();
        void Abre();

    private:
        std::shared_ptr<plataforma::Database> m_banco; ///< outlives a store opened anew
    };

    [[nodiscard]] QString Caminho() const; ///< full path of the store file
    [[nodiscard]] const QString &NomeDoArquivo() const { return m_arquivo; }

private:
    void Abre(int tabela, const QString &consulta);
    QString NomePorCodigo(const QString &codigo, int tabela);

    QString m_pasta;
    QString m_arquivo;
    Mensagens &m_mensagens;
    std::shared_ptr<plataforma::Database> m_banco;
    std::map<int, std::unique_ptr<plataforma::Dynaset>> m_conjuntos;
};

/// The next `Index` for a row of Log: the last row's + 1 in ten digits, "0000000001" when the table has no
/// rows or its first row has no `Codigo`. Leaves the set on the last row.
QString ProximoIndex(plataforma::Dynaset &log);

/// What is shown when the store is missing: `O Banco de dados "QX70.MDB" nao foi encontrado!`
QString TextoBancoNaoEncontrado(const QString &arquivo);

} // namespace nucleo
