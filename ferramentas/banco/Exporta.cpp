// Command "exporta": the tables of the store as CSV files, all of them or none, and all of one state.
#include "Comandos.h"
#include "Console.h"
#include "Csv.h"
#include "Esquema.h"
#include "Leitura.h"
#include "Loja.h"
#include "OpcoesCsv.h"
#include "Percurso.h"
#include "plataforma/jet/Ordem.h"
#include "SaidaCsv.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace banco {

namespace {

using plataforma::ErrOpen;
using plataforma::RuntimeError;

constexpr int kTentativas = 5;
constexpr std::size_t kBlocoDeSaida = std::size_t{8} << 20; // bytes of one file that wait to be written
constexpr std::int64_t kLinhasPorOlhada = 32;               // rows between two looks at the clock

QString EmTexto(std::string_view texto)
{
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

QString NomeDoArquivo(const Tabela &tabela)
{
    return EmTexto(tabela.nome) + QStringLiteral(".csv");
}

/// One table on its way into one file.
class Extracao {
public:
    Extracao(SQLite::Database &loja, const Tabela &tabela, const EscritorCsv &escritor, bool comMarca,
             const QString &oficina)
        : m_tabela(tabela), m_escritor(escritor), m_comMarca(comMarca), m_percurso(loja, tabela),
          m_saida(oficina, NomeDoArquivo(tabela)),
          m_progresso(EmTexto(tabela.nome), m_percurso.UltimaPosicao())
    {
        PoeCabecalho();
    }
    [[nodiscard]] const Tabela &DaTabela() const { return m_tabela; }
    [[nodiscard]] std::int64_t Linhas() const { return m_percurso.Lidas(); }

    /// Takes rows until the moment is over. @return whether there may be more
    bool Avanca(const Momentos &momentos)
    {
        while (m_percurso.Proxima()) {
            PoeLinha();
            if (m_percurso.Lidas() % kLinhasPorOlhada != 0)
                continue;
            m_progresso.Mostra(m_percurso.Posicao());
            const bool cheia = m_saida.Texto().size() >= kBlocoDeSaida;
            if (m_percurso.PodeSoltar() && (cheia || momentos.Venceu()))
                return true;
            if (cheia)
                m_saida.Descarrega();
        }
        return false;
    }
    void Solta() { m_percurso.Solta(); }
    void Descarrega() { m_saida.Descarrega(); }
    void Termina() { m_saida.Termina(); }

private:
    void PoeCabecalho();
    void PoeLinha();
    [[nodiscard]] RuntimeError Recusa(EscritorCsv::Falha falha, int campo) const;

    const Tabela &m_tabela;
    const EscritorCsv &m_escritor;
    bool m_comMarca;
    Percurso m_percurso;
    SaidaCsv m_saida;
    Progresso m_progresso;
};

void Extracao::PoeCabecalho()
{
    std::string &texto = m_saida.Texto();
    if (m_comMarca)
        texto += kMarcaUtf8;
    for (const std::string_view campo : m_tabela.campos) {
        texto += campo;
        texto += m_escritor.Separador();
    }
    texto.replace(texto.size() - 1, 1, "\r\n");
}

void Extracao::PoeLinha()
{
    std::string &texto = m_saida.Texto();
    for (int i = 0; i < static_cast<int>(m_tabela.campos.size()); ++i) {
        if (i > 0)
            texto += m_escritor.Separador();
        const auto campo = m_percurso.Campo(i);
        if (!campo)
            continue;
        const EscritorCsv::Falha falha = m_escritor.Poe(texto, *campo);
        if (falha != EscritorCsv::Falha::Nenhuma)
            throw Recusa(falha, i);
    }
    texto += "\r\n";
}

// Where the text lies that cannot be written, and why it cannot.
RuntimeError Extracao::Recusa(EscritorCsv::Falha falha, int campo) const
{
    const auto chave = std::find(m_tabela.campos.begin(), m_tabela.campos.end(), m_tabela.chave);
    const auto valor = m_percurso.Campo(static_cast<int>(chave - m_tabela.campos.begin()));
    const QString lugar = QStringLiteral("Tabela %1, %2 \"%3\" (linha %4 da tabela), campo %5")
                              .arg(EmTexto(m_tabela.nome), EmTexto(m_tabela.chave),
                                   EmTexto(valor.value_or("")), QString::number(m_percurso.Lidas()),
                                   EmTexto(m_tabela.campos[static_cast<std::size_t>(campo)]));
    if (falha == EscritorCsv::Falha::Nulo)
        return {ErrOpen, QStringLiteral("%1: o valor tem um caractere nulo, e nada foi exportado. Corrija o "
                                        "registro e tente de novo.")
                             .arg(lugar)};
    std::string ansi;
    const std::string texto = plataforma::jet::TextoGravado(*m_percurso.Campo(campo)).toStdString();
    const char32_t codigo = PrimeiroCaractere(std::string_view(texto).substr(PoeEmAnsi(ansi, texto))).codigo;
    const QString numero =
        QStringLiteral("%1").arg(static_cast<uint>(codigo), 4, 16, QLatin1Char('0')).toUpper();
    return {ErrOpen, QStringLiteral("%1: o caractere \"%2\" (U+%3) não existe em Windows-1252, e nada foi "
                                    "exportado. Exporte com --codificacao utf-8.")
                         .arg(lugar, QString::fromUcs4(&codigo, 1), numero)};
}

using Extracoes = std::vector<std::unique_ptr<Extracao>>;

// Reads moment by moment, and writes between them, so that a slow disk keeps nobody waiting.
// @return false when the store changed meanwhile
bool ExtraiTudo(Momentos &momentos, const Extracoes &extracoes)
{
    for (const auto &extracao : extracoes) {
        for (bool mais = true; mais;) {
            if (!momentos.Aberto() && !momentos.Comeca())
                return false;
            mais = extracao->Avanca(momentos);
            extracao->Solta();
            if (!mais && !momentos.Venceu())
                break;
            momentos.Termina();
            for (const auto &outra : extracoes)
                outra->Descarrega();
        }
    }
    return true;
}

std::vector<const Tabela *> TabelasPedidas(const OpcoesCsv &opcoes)
{
    std::vector<const Tabela *> tabelas = opcoes.tabelas;
    if (tabelas.empty()) {
        for (const Tabela &tabela : Tabelas())
            tabelas.push_back(&tabela);
    }
    return tabelas;
}

// What each table gave; nothing when the store changed meanwhile.
QStringList Tenta(SQLite::Database &loja, const OpcoesCsv &opcoes, const QString &oficina)
{
    const Codificacao codificacao = opcoes.codificacao.value_or(Codificacao::Windows1252);
    const EscritorCsv escritor(opcoes.separador.value_or(';'), codificacao);
    Extracoes extracoes;
    for (const Tabela *const tabela : TabelasPedidas(opcoes))
        extracoes.push_back(
            std::make_unique<Extracao>(loja, *tabela, escritor, codificacao == Codificacao::Utf8, oficina));
    Momentos momentos(loja);
    const bool inteira = ExtraiTudo(momentos, extracoes);
    if (momentos.Aberto())
        momentos.Termina();
    QStringList contas;
    for (const auto &extracao : extracoes) {
        if (!inteira)
            break;
        extracao->Termina();
        contas.append(ContaDeLinhas(EmTexto(extracao->DaTabela().nome), extracao->Linhas()));
    }
    return contas;
}

QStringList ExtraiLoja(const QString &caminho, const OpcoesCsv &opcoes, const QString &oficina)
{
    try {
        const auto loja = AbreParaLer(caminho);
        for (int i = 0; i < kTentativas; ++i) {
            const QStringList contas = Tenta(*loja, opcoes, oficina);
            if (!contas.isEmpty())
                return contas;
        }
    } catch (const SQLite::Exception &erro) {
        throw ErroDeLeitura(erro, caminho);
    }
    throw RuntimeError(plataforma::ErrLock,
                       QStringLiteral("O arquivo %1 mudou %2 vezes enquanto era lido, e nada foi exportado. "
                                      "Tente de novo quando ninguém estiver gravando nele.")
                           .arg(caminho, QString::number(kTentativas)));
}

} // namespace

int Exporta(const QStringList &argumentos)
{
    OpcoesCsv opcoes;
    const QString recusa = LeOpcoesCsv(QStringLiteral("exporta"), argumentos, opcoes);
    if (!recusa.isEmpty())
        return ReclamaDaChamada(recusa);
    if (opcoes.lugares.size() != 1)
        return ReclamaDaChamada(
            QStringLiteral("\"exporta\" pede a pasta do banco de dados e a pasta de destino, e só isso."));
    const QString caminho = ArquivoNaPasta(opcoes.pasta, QLatin1String(kNomeDaLoja));
    QStringList nomes;
    for (const Tabela *const tabela : TabelasPedidas(opcoes))
        nomes.append(NomeDoArquivo(*tabela));
    PastaDeSaida destino(opcoes.lugares.first(), nomes);
    const QStringList contas = ExtraiLoja(caminho, opcoes, destino.Oficina());
    destino.Publica();
    for (const QString &conta : contas)
        Diz(conta);
    Diz(QStringLiteral("Exportado para %1").arg(opcoes.lugares.first()));
    return kFeito;
}

} // namespace banco
