// Where the rows of a dynaset come from: walked by key, or listed beforehand in an order of their own.
#include "Fonte.h"

#include <algorithm>
#include <sqlite3.h>

namespace plataforma::jet {

namespace {

constexpr const char *LIMITE = " limit ?";

// Reads several rows under one lock; inside a group of writes that lock is there.
class TransacaoDeLeitura {
public:
    explicit TransacaoDeLeitura(Conexao &conexao)
        : m_conexao(conexao), m_propria(sqlite3_get_autocommit(conexao.Motor()) != 0)
    {
        if (m_propria)
            Comando(conexao, "begin").Passo();
    }
    ~TransacaoDeLeitura()
    {
        if (!m_propria)
            return;
        try {
            Comando(m_conexao, "rollback").Passo(); // nothing was written
        } catch (const std::exception &) {
            return; // the engine has ended it by itself
        }
    }
    TransacaoDeLeitura(const TransacaoDeLeitura &) = delete;
    TransacaoDeLeitura &operator=(const TransacaoDeLeitura &) = delete;

private:
    Conexao &m_conexao;
    bool m_propria;
};

// Adds the values of the statement's current row that begin at `primeira`.
void JuntaValores(const Comando &comando, int primeira, qsizetype quantos, Rows &linhas)
{
    for (int i = 0; i < quantos; ++i)
        linhas.Add(comando.Bytes(primeira + i));
}

} // namespace

void Fonte::JuntaUma(const Lugar &lugar, Bloco &bloco)
{
    if (!m_uma)
        m_uma = m_selecao.Linhas(m_selecao.ChaveCompara("="), {});
    m_uma->LigaChave(1, lugar.chave);
    const Leitura leitura(*m_uma);
    if (m_uma->Passo())
        m_selecao.Junta(*m_uma, bloco, lugar.indice);
}

void Fonte::LeUma(const Lugar &lugar, Bloco &bloco)
{
    m_selecao.Esvazia(bloco);
    JuntaUma(lugar, bloco);
}

FontePorChave::FontePorChave(const Selecao &selecao)
    : Fonte(selecao),
      m_primeira(selecao.Linhas(selecao.Onde(), " order by " + selecao.OrdemDaChave(false) + " limit 1"))
{
}

void FontePorChave::LePrimeira(Bloco &bloco)
{
    m_selecao.Esvazia(bloco);
    m_selecao.Enche(*m_primeira, bloco);
}

void FontePorChave::LeUltima(Bloco &bloco)
{
    m_selecao.Esvazia(bloco);
    const auto ultima =
        m_selecao.Linhas(m_selecao.Onde(), " order by " + m_selecao.OrdemDaChave(true) + " limit 1");
    m_selecao.Enche(*ultima, bloco);
}

void FontePorChave::LeDepois(const Lugar &lugar, int quantas, Bloco &bloco)
{
    if (!m_depois)
        m_depois = m_selecao.Linhas(m_selecao.Onde(m_selecao.ChaveCompara(">")),
                                    " order by " + m_selecao.OrdemDaChave(false) + LIMITE);
    m_depois->Liga(m_depois->LigaChave(1, lugar.chave), quantas);
    m_selecao.Esvazia(bloco);
    m_selecao.Enche(*m_depois, bloco);
}

void FontePorChave::LeAntes(const Lugar &lugar, int quantas, Bloco &bloco)
{
    if (!m_antes)
        m_antes = m_selecao.Linhas(m_selecao.Onde(m_selecao.ChaveCompara("<")),
                                   " order by " + m_selecao.OrdemDaChave(true) + LIMITE);
    m_antes->Liga(m_antes->LigaChave(1, lugar.chave), quantas);
    m_selecao.Esvazia(bloco);
    m_selecao.Enche(*m_antes, bloco);
    bloco.Inverte();
}

void FontePorChave::Procura(const QString &condicao, Bloco &bloco)
{
    m_selecao.Esvazia(bloco);
    const auto procura = m_selecao.Linhas(m_selecao.Onde('(' + condicao + ')'),
                                          " order by " + m_selecao.OrdemDaChave(false) + " limit 1");
    m_selecao.Enche(*procura, bloco);
}

Rows FontePorChave::LeTudo(const QList<qsizetype> &campos)
{
    Rows linhas(static_cast<int>(campos.size()));
    const auto comando = m_selecao.Campos(campos, campos.isEmpty(), m_selecao.Onde(),
                                          " order by " + m_selecao.OrdemDaChave(false));
    while (comando->Passo())
        JuntaValores(*comando, 0, campos.size(), linhas);
    return linhas;
}

FonteListada::FonteListada(const Selecao &selecao)
    : Fonte(selecao), m_lista(selecao.Chaves(selecao.Onde(), " order by " + selecao.Pedido().ordem + ", " +
                                                                 selecao.OrdemDaChave(false)))
{
}

FonteListada::FonteListada(const Selecao &selecao, std::optional<Lugar> &atual, bool atualApagada)
    : Fonte(selecao)
{
    const TransacaoDeLeitura transacao(selecao.Ligacao());
    const QString ordem = " order by " + selecao.OrdemDaChave(false);
    if (!atual) {
        JuntaChaves(*selecao.Chaves(selecao.Onde(), ordem));
        return;
    }
    const auto antes = selecao.Chaves(selecao.Onde(selecao.ChaveCompara("<")), ordem);
    antes->LigaChave(1, atual->chave);
    JuntaChaves(*antes);
    atual->indice = m_chaves.Tamanho();
    m_chaves.Junta(atual->chave);
    if (atualApagada)
        Apagada(*atual);
    const auto depois = selecao.Chaves(selecao.Onde(selecao.ChaveCompara(">")), ordem);
    depois->LigaChave(1, atual->chave);
    JuntaChaves(*depois);
}

void FonteListada::JuntaChaves(Comando &comando)
{
    const Leitura leitura(comando);
    while (comando.Passo())
        m_chaves.Junta(m_selecao.LeChave(comando));
}

void FonteListada::Lista()
{
    if (!m_lista)
        return;
    m_chaves = {}; // a failure half way leaves nothing behind
    JuntaChaves(*m_lista);
    m_lista.reset();
}

// Reads from one index on, forwards or backwards, passing over rows that are gone.
void FonteListada::Percorre(qsizetype inicio, int passo, int quantas, Bloco &bloco)
{
    Lista();
    m_selecao.Esvazia(bloco);
    const TransacaoDeLeitura transacao(m_selecao.Ligacao());
    for (qsizetype i = inicio; i >= 0 && i < m_chaves.Tamanho(); i += passo) {
        if (bloco.Linhas() >= quantas || bloco.Cheio())
            return;
        if (!EstaApagada(i))
            JuntaUma({m_chaves.Em(i), i}, bloco);
    }
}

void FonteListada::LePrimeira(Bloco &bloco)
{
    Percorre(0, 1, 1, bloco);
}

void FonteListada::LeUltima(Bloco &bloco)
{
    Lista();
    Percorre(m_chaves.Tamanho() - 1, -1, 1, bloco);
}

void FonteListada::LeDepois(const Lugar &lugar, int quantas, Bloco &bloco)
{
    Percorre(lugar.indice + 1, 1, quantas, bloco);
}

void FonteListada::LeAntes(const Lugar &lugar, int quantas, Bloco &bloco)
{
    Percorre(lugar.indice - 1, -1, quantas, bloco);
    bloco.Inverte();
}

void FonteListada::Procura(const QString &condicao, Bloco &bloco)
{
    Lista();
    m_selecao.Esvazia(bloco);
    std::vector<Chave> achadas;
    const auto comando = m_selecao.Chaves(condicao, {});
    {
        const Leitura leitura(*comando);
        while (comando->Passo())
            achadas.push_back(m_selecao.LeChave(*comando));
    }
    std::sort(achadas.begin(), achadas.end());
    for (qsizetype i = 0; i < m_chaves.Tamanho() && !achadas.empty() && bloco.Linhas() == 0; ++i) {
        if (!EstaApagada(i) && std::binary_search(achadas.begin(), achadas.end(), m_chaves.Em(i)))
            JuntaUma({m_chaves.Em(i), i}, bloco);
    }
}

qint64 FonteListada::Conta()
{
    Lista();
    return m_chaves.Tamanho() - m_quantasApagadas;
}

Rows FonteListada::LeTudo(const QList<qsizetype> &campos)
{
    if (m_lista)
        return LeListando(campos);
    Rows linhas(static_cast<int>(campos.size()));
    const auto comando = m_selecao.Campos(campos, campos.isEmpty(), m_selecao.ChaveCompara("="), {});
    const TransacaoDeLeitura transacao(m_selecao.Ligacao());
    for (qsizetype i = 0; i < m_chaves.Tamanho(); ++i) {
        if (EstaApagada(i))
            continue;
        comando->LigaChave(1, m_chaves.Em(i));
        const Leitura leitura(*comando);
        if (comando->Passo())
            JuntaValores(*comando, 0, campos.size(), linhas);
    }
    return linhas;
}

// The first need of the keys: they come along with the values.
Rows FonteListada::LeListando(const QList<qsizetype> &campos)
{
    const Consulta &consulta = m_selecao.Pedido();
    const auto primeira = static_cast<int>(consulta.tabela.chave.size());
    Rows linhas(static_cast<int>(campos.size()));
    ListaDeChaves chaves;
    const auto comando = m_selecao.Campos(
        campos, true, m_selecao.Onde(), " order by " + consulta.ordem + ", " + m_selecao.OrdemDaChave(false));
    while (comando->Passo()) {
        chaves.Junta(m_selecao.LeChave(*comando));
        JuntaValores(*comando, primeira, campos.size(), linhas);
    }
    m_chaves = std::move(chaves);
    m_lista.reset();
    return linhas;
}

void FonteListada::Incluida(const Chave &chave)
{
    m_chaves.Junta(chave);
}

void FonteListada::Alterada(const Lugar &lugar, const Chave &nova)
{
    m_chaves.Troca(lugar.indice, nova);
}

void FonteListada::Apagada(const Lugar &lugar)
{
    m_apagadas.resize(static_cast<std::size_t>(m_chaves.Tamanho()));
    m_apagadas[static_cast<std::size_t>(lugar.indice)] = true;
    ++m_quantasApagadas;
}

bool FonteListada::EstaApagada(qsizetype indice) const
{
    const auto i = static_cast<std::size_t>(indice);
    return i < m_apagadas.size() && m_apagadas[i];
}

} // namespace plataforma::jet
