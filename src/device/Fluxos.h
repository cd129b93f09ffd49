// The shared flows over the device: each opens the port, does its work and closes it. None retries.
#pragma once

#include "device/Impressora.h"
#include "device/Posicoes.h"
#include <optional>
#include <QString>

namespace device {

inline const QString kErroDeComunicacao = QStringLiteral("Erro de comunicação com a impressora.");

/// In every flow `portaSerial` is the port name, which the library may rewrite.

/// Sends a whole free text as one call, `modo` 1 to 3 (136, 96, 80 columns). Failures are told to the
/// operator here. When the text is refused the port stays open and the document held.
void EnviaFormatado(const QString &texto, int modo, QString &portaSerial, Impressora &impressora,
                    nucleo::Mensagens &mensagens);

/// What the selectors of ComandoImpressora take from the screens, as the boxes hold it.
struct TextosDoComando {
    TextosDoBanco banco{};      ///< selector 0: Text1(0) to Text1(14) of Bancos
    QString codigoDoFavorecido; ///< selectors 1 and 2: Text1(0) of Favorec, 5 digits
    QString nomeDoFavorecido;   ///< selector 1: Text1(1) of Favorec
};

enum Seletor : int {
    kIncluiBanco = 0,
    kIncluiFavorecido = 1,
    kExcluiFavorecido = 2,
    kCancelaTudo = 3,
    kCancelaUltimo = 4,
    kAbreEFecha = 5,
    kZeraConfig = 6,
    kSemIndicador = 7,  ///< as kAbreEFecha, with no indicator
    kSemIndicador2 = 8, ///< the same
};

/// One operation between opening and closing the port, with the indicator.
/// @return 0 when the position rule refuses the bank (the operator was told; the port stays open), else 1,
/// whatever the device answered
int ComandoImpressora(int seletor, const TextosDoComando &textos, QString &portaSerial,
                      Impressora &impressora, nucleo::Mensagens &mensagens);

/// Tells the device the digits of the year: 1, 2 or 4; nothing is sent for another number. No indicator.
void EnviaDigitosDoAno(int digitos, QString &portaSerial, Impressora &impressora);

/// Prints a normal cheque, with the indicator. A port that does not open shows in the result: 1 is success.
int EnviaChequeNormal(const TextosDoCheque &textos, QString &portaSerial, Impressora &impressora);

/// Prints one cheque of a series. Nothing when the port does not open (any answer but 1): no cheque was sent
/// and the port is not closed. Otherwise the result of the cheque: 1 is success.
std::optional<int> EnviaChequeDaSerie(const TextosDoCheque &textos, QString &portaSerial,
                                      Impressora &impressora);

/// Takes entries out of the report in the device: "*" all, "u" the last one. No indicator.
void CancelaNoDispositivo(const QString &alvo, QString &portaSerial, Impressora &impressora);

} // namespace device
