// Order of the operations in each flow, and the exits that leave the port open.
#include "device/Fluxos.h"

#include "device/Acentos.h"
#include "device/Comandos.h"
#include "plataforma/basico/Texto.h"
#include <QStringList>

namespace device {

namespace {

QString JuntaPosicoes(const TextosDoBanco &textos)
{
    QStringList posicoes;
    for (size_t i = 2; i < textos.size(); ++i)
        posicoes.append(textos.at(i));
    return posicoes.join(QLatin1Char(','));
}

/// Only the last two of the five digits go to the device.
QString CodigoNoDispositivo(const QString &codigo)
{
    return plataforma::Mid(codigo, 4, 2);
}

/// @return whether the port is to be closed as usual
bool ExecutaSeletor(int seletor, const TextosDoComando &textos, Impressora &impressora,
                    nucleo::Mensagens &mensagens)
{
    switch (seletor) {
    case kIncluiBanco:
        if (!VerificaPosicoes(textos.banco)) {
            mensagens.MsgBox(kErroDePosicoes, nucleo::Botoes::Ok, nucleo::Icone::Nenhum,
                             kTituloDeErroDePosicoes);
            return false;
        }
        impressora.IncluiBanco(textos.banco.at(0), JuntaPosicoes(textos.banco));
        break;
    case kIncluiFavorecido:
        impressora.IncluiFavorecido(CodigoNoDispositivo(textos.codigoDoFavorecido),
                                    RemoveAcentos(plataforma::Trim(textos.nomeDoFavorecido)));
        break;
    case kExcluiFavorecido:
        impressora.ExcluiFavorecido(CodigoNoDispositivo(textos.codigoDoFavorecido));
        break;
    case kCancelaTudo:
        impressora.CancelaRel(QStringLiteral("*"));
        break;
    case kCancelaUltimo:
        impressora.CancelaRel(QStringLiteral("U"));
        break;
    case kZeraConfig:
        impressora.ZeraConfig();
        break;
    default:
        break;
    }
    return true;
}

} // namespace

void EnviaFormatado(const QString &texto, int modo, QString &portaSerial, Impressora &impressora,
                    nucleo::Mensagens &mensagens)
{
    impressora.SinalizaPorta(1);
    if (impressora.IniciaPorta(portaSerial) == kPortaFechada) {
        mensagens.MsgBox(kErroDeComunicacao, nucleo::Botoes::Ok, nucleo::Icone::Pare);
        return;
    }
    impressora.TravaDoc(1);
    if (impressora.FormataTX(RemoveAcentos(texto), modo, 0, 0, 0, 0) != 1) {
        // On purpose: the port stays open and the document held; the next IniciaPorta finds it so.
        mensagens.MsgBox(QStringLiteral("Erro ao enviar as informações para a impressora."),
                         nucleo::Botoes::Ok, nucleo::Icone::Pare);
        return;
    }
    impressora.TravaDoc(0);
    impressora.FechaPorta();
    impressora.SinalizaPorta(0);
}

int ComandoImpressora(int seletor, const TextosDoComando &textos, QString &portaSerial,
                      Impressora &impressora, nucleo::Mensagens &mensagens)
{
    const bool comIndicador = seletor != kSemIndicador && seletor != kSemIndicador2;
    if (comIndicador)
        impressora.SinalizaPorta(1);
    impressora.IniciaPorta(portaSerial);
    // On purpose: a refused bank leaves the port open; the next IniciaPorta finds it so.
    if (!ExecutaSeletor(seletor, textos, impressora, mensagens))
        return 0;
    impressora.FechaPorta();
    if (comIndicador)
        impressora.SinalizaPorta(0);
    return 1;
}

void EnviaDigitosDoAno(int digitos, QString &portaSerial, Impressora &impressora)
{
    const auto comando = ComandoDeDigitosDoAno(digitos);
    if (!comando)
        return;
    impressora.IniciaPorta(portaSerial);
    impressora.ComandoTX(*comando, kTamanhoDoComandoDeData);
    impressora.FechaPorta();
}

int EnviaChequeNormal(const TextosDoCheque &textos, QString &portaSerial, Impressora &impressora)
{
    impressora.SinalizaPorta(1);
    impressora.IniciaPorta(portaSerial);
    const int resultado = impressora.ImprimeCheque(textos);
    impressora.FechaPorta();
    impressora.SinalizaPorta(0);
    return resultado;
}

std::optional<int> EnviaChequeDaSerie(const TextosDoCheque &textos, QString &portaSerial,
                                      Impressora &impressora)
{
    if (impressora.IniciaPorta(portaSerial) != 1) {
        impressora.SinalizaPorta(0);
        return std::nullopt;
    }
    const int resultado = impressora.ImprimeCheque(textos);
    impressora.FechaPorta();
    impressora.SinalizaPorta(0);
    return resultado;
}

void CancelaNoDispositivo(const QString &alvo, QString &portaSerial, Impressora &impressora)
{
    impressora.IniciaPorta(portaSerial);
    impressora.CancelaRel(alvo);
    impressora.FechaPorta();
}

} // namespace device
