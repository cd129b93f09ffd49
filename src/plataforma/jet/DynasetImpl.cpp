// The state of a dynaset: its set of rows, the current row, and the row being written.
#include "DynasetImpl.h"

#include "Erros.h"

namespace plataforma {

namespace {

constexpr int MAIOR_BLOCO = 1024; // rows read ahead at most

[[noreturn]] void LancaSemLinha()
{
    throw RuntimeError(ErrNoCurrentRecord, "Não há registro atual.");
}

} // namespace

Dynaset::Impl::Impl(std::shared_ptr<jet::Conexao> conexao, jet::Consulta consulta)
    : m_selecao(std::move(conexao), std::move(consulta))
{
    if (m_selecao.Pedido().ordem.isEmpty()) {
        m_fonte = std::make_unique<jet::FontePorChave>(m_selecao);
        return;
    }
    auto listada = std::make_unique<jet::FonteListada>(m_selecao);
    m_listada = listada.get();
    m_fonte = std::move(listada);
}

void Dynaset::Impl::Posiciona()
{
    if (m_estado == Estado::Nova)
        VaiParaPrimeira();
}

bool Dynaset::Impl::EstaAntes()
{
    Posiciona();
    return m_estado == Estado::Antes || m_estado == Estado::Vazia;
}

bool Dynaset::Impl::EstaDepois()
{
    Posiciona();
    return m_estado == Estado::Depois || m_estado == Estado::Vazia;
}

bool Dynaset::Impl::TemLinhas()
{
    Posiciona();
    return m_teveLinhas;
}

QStringList Dynaset::Impl::Campos() const
{
    QStringList nomes;
    for (const jet::CampoDaConsulta &campo : m_selecao.Pedido().campos)
        nomes.append(campo.nome);
    return nomes;
}

// Makes a block just read the current one.
void Dynaset::Impl::Aceita(jet::Bloco &&bloco, qsizetype linha, Estado seVazio)
{
    if (bloco.Linhas() == 0) {
        m_estado = seVazio;
        return;
    }
    m_bloco = std::move(bloco);
    m_versao = m_selecao.Ligacao().escritas;
    m_linha = linha;
    m_lugar = m_bloco.LugarDe(linha);
    m_estado = Estado::NaLinha;
    m_teveLinhas = true;
}

void Dynaset::Impl::VaiParaPrimeira()
{
    EsqueceEdicao();
    m_adiante = 1;
    jet::Bloco bloco;
    m_fonte->LePrimeira(bloco);
    Aceita(std::move(bloco), 0, Estado::Vazia);
}

void Dynaset::Impl::VaiParaUltima()
{
    EsqueceEdicao();
    m_adiante = 1;
    jet::Bloco bloco;
    m_fonte->LeUltima(bloco);
    Aceita(std::move(bloco), 0, Estado::Vazia);
}

void Dynaset::Impl::Avanca()
{
    Posiciona();
    EsqueceEdicao();
    if (m_estado == Estado::Depois || m_estado == Estado::Vazia)
        LancaSemLinha();
    if (m_estado == Estado::Antes)
        return VaiParaPrimeira();
    if (BlocoVale() && m_linha + 1 < m_bloco.Linhas()) {
        m_lugar = m_bloco.LugarDe(++m_linha);
        m_estado = Estado::NaLinha;
        return;
    }
    m_adiante = std::min(m_adiante * 4, MAIOR_BLOCO);
    jet::Bloco bloco;
    m_fonte->LeDepois(m_lugar, m_adiante, bloco);
    Aceita(std::move(bloco), 0, Estado::Depois);
}

void Dynaset::Impl::Recua()
{
    Posiciona();
    EsqueceEdicao();
    if (m_estado == Estado::Antes || m_estado == Estado::Vazia)
        LancaSemLinha();
    if (m_estado == Estado::Depois)
        return VaiParaUltima();
    if (BlocoVale() && m_linha > 0) {
        m_lugar = m_bloco.LugarDe(--m_linha);
        m_estado = Estado::NaLinha;
        return;
    }
    m_adiante = std::min(m_adiante * 4, MAIOR_BLOCO);
    jet::Bloco bloco;
    m_fonte->LeAntes(m_lugar, m_adiante, bloco);
    const qsizetype ultima = bloco.Linhas() - 1;
    Aceita(std::move(bloco), ultima, Estado::Antes);
}

void Dynaset::Impl::Procura(const QString &criterio)
{
    const QString condicao = jet::LeCriterio(criterio, m_selecao.Pedido().tabela);
    Posiciona();
    EsqueceEdicao();
    jet::Bloco bloco;
    m_fonte->Procura(condicao, bloco);
    m_semPar = bloco.Linhas() == 0;
    if (m_semPar)
        return;
    m_adiante = 1;
    Aceita(std::move(bloco), 0, Estado::NaLinha);
}

void Dynaset::Impl::ExigeLinha()
{
    Posiciona();
    if (m_estado != Estado::NaLinha)
        LancaSemLinha();
}

// Takes the current row from the file again.
void Dynaset::Impl::LeDeNovo()
{
    jet::Bloco bloco;
    m_fonte->LeUma(m_lugar, bloco);
    if (BlocoVale() && bloco.Linhas() > 0)
        m_bloco.Troca(m_linha, bloco, m_lugar);
    else
        Aceita(std::move(bloco), 0, Estado::Apagada);
    ExigeLinha();
}

qsizetype Dynaset::Impl::IndiceDoCampo(const QString &nome) const
{
    const QList<jet::CampoDaConsulta> &campos = m_selecao.Pedido().campos;
    for (qsizetype i = 0; i < campos.size();
         ++i) { // the spelling of the file is the usual one, and the fast one
        if (campos[i].nome == nome)
            return i;
    }
    for (qsizetype i = 0; i < campos.size(); ++i) {
        if (campos[i].nome.compare(nome, Qt::CaseInsensitive) == 0)
            return i;
    }
    jet::LancaSemCampo(nome, m_selecao.Pedido().tabela.nome);
}

QString Dynaset::Impl::Le(const QString &nome)
{
    const qsizetype indice = IndiceDoCampo(nome);
    const qsizetype coluna = m_selecao.Pedido().campos[indice].coluna;
    if (m_edicao != Edicao::Nenhuma && m_novos.contains(coluna))
        return m_novos.value(coluna);
    if (m_edicao == Edicao::Inclusao)
        return {};
    ExigeLinha();
    if (!BlocoVale())
        LeDeNovo();
    return m_bloco.Texto(m_linha, indice);
}

Rows Dynaset::Impl::LeTudo(const QStringList &campos) const
{
    QList<qsizetype> indices;
    for (const QString &campo : campos)
        indices.append(IndiceDoCampo(campo));
    return m_fonte->LeTudo(indices);
}

void Dynaset::Impl::Poe(const QString &nome, const QString &valor)
{
    const qsizetype indice = IndiceDoCampo(nome);
    if (m_edicao == Edicao::Nenhuma)
        throw RuntimeError(jet::ErrNaoEdita,
                           QString("O campo \"%1\" só muda depois de AddNew ou Edit.").arg(nome));
    m_novos.insert(m_selecao.Pedido().campos[indice].coluna, valor);
}

void Dynaset::Impl::IniciaInclusao()
{
    EsqueceEdicao();
    m_edicao = Edicao::Inclusao;
}

void Dynaset::Impl::IniciaAlteracao()
{
    EsqueceEdicao();
    ExigeLinha();
    LeDeNovo();
    m_edicao = Edicao::Alteracao;
}

void Dynaset::Impl::EsqueceEdicao()
{
    if (m_edicao == Edicao::Nenhuma)
        return;
    m_edicao = Edicao::Nenhuma;
    m_novos.clear();
}

// Before a write: from now on the set has the rows that it has now, whatever becomes of them. A whole table
// needs no list, since a write can take no row out of it.
void Dynaset::Impl::FixaConjunto()
{
    if (m_listada)
        return m_listada->Lista();
    if (m_selecao.Pedido().condicao.isEmpty())
        return;
    std::optional<jet::Lugar> atual;
    if (m_estado == Estado::NaLinha || m_estado == Estado::Apagada)
        atual = m_lugar;
    auto listada = std::make_unique<jet::FonteListada>(m_selecao, atual, m_estado == Estado::Apagada);
    m_listada = listada.get();
    m_fonte = std::move(listada);
    if (atual)
        m_lugar = *atual;
    --m_versao; // the places in the block have no index yet
}

void Dynaset::Impl::Grava()
{
    if (m_edicao == Edicao::Nenhuma)
        throw RuntimeError(jet::ErrNaoEdita, "Update sem AddNew ou Edit.");
    if (m_edicao == Edicao::Inclusao)
        GravaInclusao();
    else
        GravaAlteracao();
    EsqueceEdicao();
}

void Dynaset::Impl::GravaInclusao()
{
    FixaConjunto();
    const bool valia = BlocoVale();
    jet::Bloco bloco;
    m_selecao.Inclui(m_novos, bloco);
    m_fonte->Incluida(bloco.LugarDe(0).chave);
    m_teveLinhas = true;
    if (valia)
        m_versao = m_selecao.Ligacao().escritas;
    if (m_estado == Estado::Vazia)
        m_estado = Estado::Nova;
}

void Dynaset::Impl::GravaAlteracao()
{
    if (m_novos.isEmpty())
        return;
    FixaConjunto();
    const bool valia = BlocoVale();
    jet::Bloco bloco;
    if (!m_selecao.Altera(m_lugar.chave, m_novos, bloco)) {
        m_estado = Estado::Apagada;
        EsqueceEdicao();
        LancaSemLinha();
    }
    const jet::Chave nova = bloco.LugarDe(0).chave;
    m_fonte->Alterada(m_lugar, nova);
    m_lugar.chave = nova;
    m_bloco.Troca(m_linha, bloco, m_lugar);
    if (valia)
        m_versao = m_selecao.Ligacao().escritas;
}

void Dynaset::Impl::Apaga()
{
    EsqueceEdicao();
    ExigeLinha();
    const bool valia = BlocoVale();
    const bool havia = m_selecao.Apaga(m_lugar.chave);
    m_estado = Estado::Apagada;
    if (!havia)
        LancaSemLinha();
    m_fonte->Apagada(m_lugar);
    if (valia)
        m_versao = m_selecao.Ligacao().escritas;
}

} // namespace plataforma
