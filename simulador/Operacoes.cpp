// The ten operations of the device. Each answers a result number and says in the notice why it refuses.
#include <algorithm>

#include "Dispositivo.h"
#include "Palavras.h"
#include "qx7032/Argumentos.h"
#include "qx7032/resultados.h"

namespace simulador {

using qx7032::Quadro;

namespace {

/// The texts of a payload that holds exactly `quantos` of them; empty otherwise.
std::optional<std::vector<QString>> LeTextos(const Quadro &quadro, int quantos)
{
    qx7032::LeitorDeArgumentos leitor(quadro.carga);
    std::vector<QString> textos;
    for (int i = 0; i < quantos; ++i)
        textos.push_back(TextoDe850(QByteArray::fromStdString(leitor.Texto().value_or(std::string()))));
    if (!leitor.Terminou())
        return std::nullopt;
    return textos;
}

bool Escrevivel(const QString &texto, int maximo)
{
    return !texto.trimmed().isEmpty() && texto.size() <= maximo &&
           std::none_of(texto.begin(), texto.end(), [](QChar c) { return c < QLatin1Char(' '); });
}

int Recusa23(Reacao &reacao, const QString &motivo)
{
    reacao.aviso = motivo;
    return QX7032_TEXTO_RECUSADO;
}

int SemPapel(Reacao &reacao, int resultado)
{
    reacao.aviso = resultado == QX7032_FIM_DE_PAPEL ? QStringLiteral("Fim de papel.")
                                                    : QStringLiteral("Não há documento na fenda.");
    return resultado;
}

const QString kArgumentos = QStringLiteral("Os argumentos da ordem não são os esperados.");

} // namespace

int Dispositivo::Trava(const Quadro &quadro, int faltaDePapel, Reacao &reacao)
{
    qx7032::LeitorDeArgumentos leitor(quadro.carga);
    const auto trava = leitor.Numero();
    if (!leitor.Terminou() || (trava != 0 && trava != 1))
        return Recusa23(reacao, kArgumentos);
    if (m_travado)
        SoltaDocumento(reacao);
    if (trava == 0)
        return QX7032_SUCESSO;
    m_travado = true;
    m_recusaDaTrava = faltaDePapel;
    reacao.tomouDocumento = faltaDePapel == 0;
    return faltaDePapel == 0 ? QX7032_SUCESSO : SemPapel(reacao, faltaDePapel);
}

int Dispositivo::Formata(const Quadro &quadro, int faltaDePapel, Reacao &reacao)
{
    qx7032::LeitorDeArgumentos leitor(quadro.carga);
    const auto texto = leitor.Texto();
    std::array<int, 5> numeros{}; // modo, f3, f4, f5, f6
    for (int &numero : numeros)
        numero = leitor.Numero().value_or(0);
    if (!leitor.Terminou())
        return Recusa23(reacao, kArgumentos);
    if (!LarguraDoModo(numeros[0]))
        return Recusa23(reacao, QStringLiteral("O modo %1 não existe.").arg(numeros[0]));
    // A hold that began without paper stays without it.
    const int falta = m_travado ? std::max(m_recusaDaTrava, faltaDePapel) : faltaDePapel;
    if (falta != 0)
        return SemPapel(reacao, falta);
    m_folha.Acrescenta(QByteArray::fromStdString(*texto), numeros[0], numeros[3] == 1);
    if (!m_travado) {
        reacao.tomouDocumento = true;
        std::vector<Documento> folhas = m_folha.Tira();
        reacao.documentos.insert(reacao.documentos.end(), std::make_move_iterator(folhas.begin()),
                                 std::make_move_iterator(folhas.end()));
    }
    return QX7032_SUCESSO;
}

int Dispositivo::ImprimeCheque(const Quadro &quadro, int faltaDePapel, Reacao &reacao)
{
    if (m_travado)
        SoltaDocumento(reacao);
    EstadoDoLeiaute estado{{}, {}, m_memoria.digitosDoAno, m_memoria.moedaSingular, m_memoria.moedaPlural,
                           {}};
    for (const ExtraPendente &pendente : m_extras)
        estado.extras.push_back(pendente.extra);
    const auto textos = LeTextos(quadro, 6);
    if (!textos)
        return Recusa23(reacao, kArgumentos);
    if (faltaDePapel != 0)
        return SemPapel(reacao, faltaDePapel);
    // The sixth text carries nothing that is printed.
    const QString codigo = CodigoDe(textos->at(0), 3);
    const auto banco = m_memoria.bancos.constFind(codigo);
    if (banco == m_memoria.bancos.constEnd()) {
        reacao.aviso = QStringLiteral("O banco \"%1\" não tem leiaute na impressora.").arg(textos->at(0));
        return QX7032_BANCO_SEM_LEIAUTE;
    }
    estado.posicoes = banco->posicoes;
    estado.nomeDoBanco = banco->nome;
    const TextosDoCheque cheque{codigo, textos->at(1).trimmed(), textos->at(2).trimmed(),
                                textos->at(3).trimmed(), textos->at(4).trimmed()};
    const auto montado = MontaCheque(cheque, estado);
    if (const Recusa *recusa = std::get_if<Recusa>(&montado))
        return Recusa23(reacao, recusa->motivo);
    reacao.tomouDocumento = true;
    reacao.documentos.push_back(std::get<Documento>(montado));
    AnotaCheque(m_memoria, {cheque.banco, cheque.valor, cheque.favorecido, cheque.cidade, cheque.data});
    reacao.memoriaMudou = true;
    return QX7032_SUCESSO;
}

int Dispositivo::GuardaExtra(const Quadro &quadro, Reacao &reacao)
{
    qx7032::LeitorDeArgumentos leitor(quadro.carga);
    const int campo = leitor.Numero().value_or(0);
    const int linha = leitor.Numero().value_or(0);
    const int coluna = leitor.Numero().value_or(0);
    const QString texto = TextoDe850(QByteArray::fromStdString(leitor.Texto().value_or(std::string())));
    if (!leitor.Terminou() || campo < 1 || campo > 9 || !Escrevivel(texto, kColunas)) {
        m_extras.clear();
        m_sequenciaDosExtras.reset();
        return Recusa23(reacao, QStringLiteral("O campo extra não foi aceito."));
    }
    std::erase_if(m_extras, [campo](const ExtraPendente &pendente) { return pendente.campo == campo; });
    m_extras.push_back({campo, {{linha, coluna}, texto}});
    return QX7032_SUCESSO;
}

int Dispositivo::IncluiBanco(const Quadro &quadro, Reacao &reacao)
{
    const auto textos = LeTextos(quadro, 2);
    if (!textos)
        return Recusa23(reacao, kArgumentos);
    const QString codigo = CodigoDe(textos->at(0), 3);
    const auto posicoes = LePosicoes(textos->at(1));
    if (codigo.isEmpty() || !posicoes)
        return Recusa23(
            reacao, QStringLiteral("O leiaute do banco \"%1\" não foi aceito: são precisos treze números.")
                        .arg(textos->at(0)));
    m_memoria.bancos[codigo].posicoes = *posicoes; // a name known from elsewhere stays
    reacao.memoriaMudou = true;
    return QX7032_SUCESSO;
}

int Dispositivo::IncluiFavorecido(const Quadro &quadro, Reacao &reacao)
{
    const auto textos = LeTextos(quadro, 2);
    if (!textos)
        return Recusa23(reacao, kArgumentos);
    const QString codigo = CodigoDe(textos->at(0), 2);
    if (codigo.isEmpty() || textos->at(0).size() != 2 || !Escrevivel(textos->at(1), kTamanhoDoFavorecido))
        return Recusa23(reacao, QStringLiteral("O favorecido \"%1\" não foi aceito.").arg(textos->at(0)));
    m_memoria.favorecidos.insert(codigo, textos->at(1).trimmed());
    reacao.memoriaMudou = true;
    return QX7032_SUCESSO;
}

int Dispositivo::ExcluiFavorecido(const Quadro &quadro, Reacao &reacao)
{
    const auto textos = LeTextos(quadro, 1);
    if (!textos)
        return Recusa23(reacao, kArgumentos);
    const QString codigo = textos->at(0).trimmed();
    if (codigo == QLatin1String("*")) {
        m_memoria.favorecidos.clear();
    } else if (m_memoria.favorecidos.remove(CodigoDe(codigo, 2)) == 0) {
        reacao.aviso = QStringLiteral("O favorecido \"%1\" não está na impressora.").arg(codigo);
        return QX7032_FAVORECIDO_INEXISTENTE;
    }
    reacao.memoriaMudou = true;
    return QX7032_SUCESSO;
}

int Dispositivo::CancelaRel(const Quadro &quadro, Reacao &reacao)
{
    const auto textos = LeTextos(quadro, 1);
    if (!textos)
        return Recusa23(reacao, kArgumentos);
    const QString alvo = textos->at(0);
    if (alvo == QLatin1String("*"))
        m_memoria.relatorio.clear();
    else if (alvo != QLatin1String("U") && alvo != QLatin1String("u"))
        return Recusa23(reacao, QStringLiteral("O cancelamento \"%1\" não existe.").arg(alvo));
    else if (!m_memoria.relatorio.isEmpty()) // with nothing left to cancel all is as asked
        m_memoria.relatorio.removeLast();
    reacao.memoriaMudou = true;
    return QX7032_SUCESSO;
}

int Dispositivo::AlteraMoeda(const Quadro &quadro, Reacao &reacao)
{
    const auto textos = LeTextos(quadro, 2);
    if (!textos)
        return Recusa23(reacao, kArgumentos);
    if (!Escrevivel(textos->at(0), kTamanhoDaMoeda) || !Escrevivel(textos->at(1), kTamanhoDaMoeda))
        return Recusa23(reacao, QStringLiteral("O nome da moeda não foi aceito."));
    m_memoria.moedaSingular = textos->at(0).trimmed();
    m_memoria.moedaPlural = textos->at(1).trimmed();
    reacao.memoriaMudou = true;
    return QX7032_SUCESSO;
}

int Dispositivo::ZeraConfig(const Quadro &quadro, Reacao &reacao)
{
    if (!quadro.carga.empty())
        return Recusa23(reacao, kArgumentos);
    // The report is no configuration: it stays.
    QList<ChequeEnviado> relatorio = std::move(m_memoria.relatorio);
    m_memoria = Memoria();
    m_memoria.relatorio = std::move(relatorio);
    reacao.memoriaMudou = true;
    return QX7032_SUCESSO;
}

} // namespace simulador
