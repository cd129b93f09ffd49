// The SQL of one query: its rows, its keys, and the writing of one row.
#include "Selecao.h"

#include <SQLiteCpp/Database.h>

namespace plataforma::jet {

namespace {

QString Juntas(const QStringList &partes)
{
    return partes.join(", ");
}

} // namespace

QString Selecao::Onde(const QString &outra) const
{
    if (m_consulta.condicao.isEmpty() || outra.isEmpty())
        return m_consulta.condicao + outra;
    return '(' + m_consulta.condicao + ") and " + outra;
}

QString Selecao::ChaveCompara(const char *sinal) const
{
    const QStringList &chave = m_consulta.tabela.chave;
    QStringList parametros;
    for (int i = 1; i <= chave.size(); ++i)
        parametros.append('?' + QString::number(i));
    return '(' + Juntas(chave) + ") " + QLatin1String(sinal) + " (" + Juntas(parametros) + ')';
}

QString Selecao::OrdemDaChave(bool decrescente) const
{
    QStringList partes = m_consulta.tabela.chave;
    for (QString &parte : partes)
        parte += decrescente ? " desc" : " asc";
    return Juntas(partes);
}

QString Selecao::ListaDeCampos() const
{
    QStringList campos = m_consulta.tabela.chave;
    for (const CampoDaConsulta &campo : m_consulta.campos)
        campos.append(NomeCitado(m_consulta.tabela.colunas[campo.coluna].nome));
    return Juntas(campos);
}

std::unique_ptr<Comando> Selecao::Linhas(const QString &onde, const QString &resto) const
{
    const QString filtro = onde.isEmpty() ? QString() : " where " + onde;
    return std::make_unique<Comando>(*m_conexao,
                                     "select " + ListaDeCampos() + " from " + Tabela() + filtro + resto);
}

std::unique_ptr<Comando> Selecao::Chaves(const QString &onde, const QString &resto) const
{
    const QString filtro = onde.isEmpty() ? QString() : " where " + onde;
    return std::make_unique<Comando>(*m_conexao, "select " + Juntas(m_consulta.tabela.chave) + " from " +
                                                     Tabela() + filtro + resto);
}

std::unique_ptr<Comando> Selecao::Campos(const QList<qsizetype> &campos, bool comChave, const QString &onde,
                                         const QString &resto) const
{
    QStringList lista = comChave ? m_consulta.tabela.chave : QStringList();
    for (const qsizetype campo : campos)
        lista.append(NomeCitado(m_consulta.tabela.colunas[m_consulta.campos[campo].coluna].nome));
    const QString filtro = onde.isEmpty() ? QString() : " where " + onde;
    return std::make_unique<Comando>(*m_conexao,
                                     "select " + Juntas(lista) + " from " + Tabela() + filtro + resto);
}

qint64 Selecao::Conta() const
{
    const QString filtro = m_consulta.condicao.isEmpty() ? QString() : " where " + m_consulta.condicao;
    Comando comando(*m_conexao, "select count(*) from " + Tabela() + filtro);
    comando.Passo();
    return comando.Inteiro(0);
}

Chave Selecao::LeChave(const Comando &comando) const
{
    return comando.LeChave(0, m_consulta.tabela.temNumero, static_cast<int>(m_consulta.tabela.chave.size()));
}

void Selecao::Enche(Comando &comando, Bloco &bloco) const
{
    const Leitura leitura(comando);
    while (!bloco.Cheio() && comando.Passo())
        Junta(comando, bloco);
}

void Selecao::Junta(const Comando &comando, Bloco &bloco, qsizetype indice) const
{
    bloco.Junta(comando, static_cast<int>(m_consulta.tabela.chave.size()), {LeChave(comando), indice});
}

void Selecao::Inclui(const Valores &valores, Bloco &bloco) const
{
    QStringList campos;
    QStringList parametros;
    for (const qsizetype coluna : valores.keys()) {
        campos.append(NomeCitado(m_consulta.tabela.colunas[coluna].nome));
        parametros.append("?" + QString::number(campos.size()));
    }
    const QString linha = campos.isEmpty() ? QString(" default values")
                                           : " (" + Juntas(campos) + ") values (" + Juntas(parametros) + ')';
    Grava("insert into " + Tabela() + linha, valores, nullptr, bloco);
}

bool Selecao::Altera(const Chave &chave, const Valores &valores, Bloco &bloco) const
{
    QStringList campos;
    int parametro = DepoisDaChave();
    for (const qsizetype coluna : valores.keys())
        campos.append(NomeCitado(m_consulta.tabela.colunas[coluna].nome) + " = ?" +
                      QString::number(parametro++));
    return Grava("update " + Tabela() + " set " + Juntas(campos) + " where " + ChaveCompara("="), valores,
                 &chave, bloco);
}

bool Selecao::Apaga(const Chave &chave) const
{
    Bloco bloco;
    return Grava("delete from " + Tabela() + " where " + ChaveCompara("="), {}, &chave, bloco);
}

// One statement is one transaction: it is on disk, or refused, when its last step returns.
bool Selecao::Grava(const QString &sql, const Valores &valores, const Chave *chave, Bloco &bloco) const
{
    const ModoTemporario escrita(*m_conexao, Conexao::Modo::Escrita);
    Comando comando(*m_conexao, sql + " returning " + ListaDeCampos());
    int parametro = chave ? comando.LigaChave(1, *chave) : 1;
    for (const QString &valor : valores)
        parametro = comando.LigaTexto(parametro, valor);
    Esvazia(bloco);
    while (comando.Passo())
        Junta(comando, bloco);
    if (bloco.Linhas() == 0)
        return false;
    ++m_conexao->escritas;
    return true;
}

} // namespace plataforma::jet
