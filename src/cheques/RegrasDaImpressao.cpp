// See RegrasDaImpressao.h.
#include "cheques/RegrasDaImpressao.h"

#include "device/Acentos.h"
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

namespace cheques {

using namespace plataforma;

std::optional<QString> VerificaCamposExtras(const std::array<CampoExtra, kCamposExtras> &campos)
{
    for (int i = 0; i < kCamposExtras; ++i) {
        const auto &[linha, coluna, texto] = campos[static_cast<std::size_t>(i)];
        if (texto.isEmpty())
            continue;
        const QString numero = QString::number(i + 1);
        if (linha == kSemPosicao || coluna == kSemPosicao)
            return QStringLiteral("Valores de posicao nao cadastrados na impressao do campo") + numero +
                   QStringLiteral("!\n");
        if (Len(texto) + coluna + 1 > kUltimaColuna || linha > kUltimaLinha)
            return QStringLiteral("Valores de posicao incorretos na impressao do campo") + numero +
                   QStringLiteral("!\nLinha =") + QString::number(linha) + QStringLiteral(" e Coluna = ") +
                   QString::number(coluna) + QStringLiteral(" + texto de tamanho ") +
                   QString::number(Len(texto)) + QLatin1Char('!');
    }
    return std::nullopt;
}

device::TextosDoCheque MontaTextosDoCheque(const TextosDoCheque &cheque)
{
    device::TextosDoCheque textos;
    textos.cidade = device::RemoveAcentos(Trim(cheque.cidade));
    textos.banco = Trim(cheque.banco);
    textos.valor = Trim(Format(CDbl(cheque.valor), QStringLiteral("###,##0.00")));
    textos.favorecido = device::RemoveAcentos(Trim(cheque.favorecido));
    textos.data = Trim(cheque.data);
    // On purpose: a normal cheque leaves the sixth text empty; only a series fills it.
    return textos;
}

std::vector<std::pair<QString, QString>> MontaLinhaDoLog(const TextosDoCheque &cheque, const QString &index)
{
    return {
        {QStringLiteral("Comentario"), cheque.linhas[0]},
        {QStringLiteral("Comentario1"), cheque.linhas[1]},
        {QStringLiteral("Comentario2"), cheque.linhas[2]},
        {QStringLiteral("StCancel"), QStringLiteral(" ")},
        {QStringLiteral("Codigo"), Right(index, 5)},
        {QStringLiteral("Banco"), cheque.banco},
        // On purpose: the pattern keeps the comma of a whole amount ("1000,").
        {QStringLiteral("V_CH"), Trim(Format(CDbl(cheque.valor), QStringLiteral("###########.##")))},
        {QStringLiteral("Favor"), cheque.favorecido},
        {QStringLiteral("Local"), cheque.cidade},
        {QStringLiteral("Data"), cheque.data},
        {QStringLiteral("Index"), index},
        {QStringLiteral("NRCH"), cheque.numero.isEmpty() ? QStringLiteral(" ") : cheque.numero},
    };
}

QString TituloDaFalha(int resultado)
{
    return QStringLiteral("Impressão do Cheque (") + Format(resultado, QStringLiteral("000")) +
           QLatin1Char(')');
}

} // namespace cheques
