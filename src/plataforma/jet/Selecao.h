// The SQL of one query: its rows, its keys, and the writing of one row.
#pragma once

#include "Bloco.h"
#include "Comando.h"
#include "Consulta.h"
#include <QMap>

namespace plataforma::jet {

/// Makes the statements over one query and reads rows out of them. In each statement the key, where there is
/// one, takes the first places of the parameters.
class Selecao {
public:
    Selecao(std::shared_ptr<Conexao> conexao, Consulta consulta)
        : m_conexao(std::move(conexao)), m_consulta(std::move(consulta))
    {
    }

    [[nodiscard]] Conexao &Ligacao() const { return *m_conexao; }
    [[nodiscard]] const Consulta &Pedido() const { return m_consulta; }
    /// "(condition) and other": joins what is not empty; empty when nothing is left.
    [[nodiscard]] QString Onde(const QString &outra = {}) const;
    /// The key compared with parameters: `sinal` is "=", "<" or ">".
    [[nodiscard]] QString ChaveCompara(const char *sinal) const;
    [[nodiscard]] QString OrdemDaChave(bool decrescente) const;
    /// "select key, fields from table" + " where ..." unless empty + `resto`.
    [[nodiscard]] std::unique_ptr<Comando> Linhas(const QString &onde, const QString &resto) const;
    /// The same with the key alone.
    [[nodiscard]] std::unique_ptr<Comando> Chaves(const QString &onde, const QString &resto) const;
    /// "select fields from table", the fields given as indexes of the query's own, with the key before them
    /// or without it.
    [[nodiscard]] std::unique_ptr<Comando> Campos(const QList<qsizetype> &campos, bool comChave,
                                                  const QString &onde, const QString &resto) const;
    [[nodiscard]] qint64 Conta() const;

    /// Index of the first parameter behind the key.
    [[nodiscard]] int DepoisDaChave() const { return static_cast<int>(m_consulta.tabela.chave.size()) + 1; }
    [[nodiscard]] Chave LeChave(const Comando &comando) const;
    /// Adds the statement's rows to the block, until it is full.
    void Enche(Comando &comando, Bloco &bloco) const;
    /// Adds the statement's current row to the block.
    void Junta(const Comando &comando, Bloco &bloco, qsizetype indice = -1) const;
    void Esvazia(Bloco &bloco) const { bloco.Esvazia(m_consulta.campos.size()); }

    /// Values by index of the table's columns.
    using Valores = QMap<qsizetype, QString>;
    /// Write one row, on disk on return; `bloco` gets it as it was stored.
    void Inclui(const Valores &valores, Bloco &bloco) const;
    /// @return false when the row is gone
    [[nodiscard]] bool Altera(const Chave &chave, const Valores &valores, Bloco &bloco) const;
    [[nodiscard]] bool Apaga(const Chave &chave) const;

private:
    [[nodiscard]] QString Tabela() const { return NomeCitado(m_consulta.tabela.nome); }
    [[nodiscard]] QString ListaDeCampos() const;
    bool Grava(const QString &sql, const Valores &valores, const Chave *chave, Bloco &bloco) const;

    std::shared_ptr<Conexao> m_conexao;
    Consulta m_consulta;
};

} // namespace plataforma::jet
