// MontaValor and the file that it leaves.
#include "device/Extenso.h"

#include "plataforma/basico/Formato.h"
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Texto.h"
#include <QFile>

namespace device {

namespace {

QString LeExtenso()
{
    QFile arquivo(kArquivoDoExtenso);
    if (!arquivo.open(QIODevice::ReadOnly)) {
        throw plataforma::RuntimeError(
            plataforma::ErrFileNotFound,
            QStringLiteral("O arquivo %1, com o valor por extenso, não foi encontrado.")
                .arg(kArquivoDoExtenso));
    }
    return plataforma::Trim(plataforma::FromAnsi(arquivo.readAll()));
}

} // namespace

QString ValorPorExtenso(const QString &valor, Impressora &impressora, nucleo::Mensagens &mensagens)
{
    const QString numero = plataforma::Format(plataforma::Trim(valor), QStringLiteral("####0.00"));
    switch (impressora.MontaValor(numero, QStringLiteral("real"), QStringLiteral("reais"))) {
    case kValorInvalido:
        mensagens.MsgBox(QStringLiteral("ERRO NOS VALORES PASSADOS"));
        return {};
    case kArquivoNaoAbre:
        mensagens.MsgBox(QStringLiteral("Nao foi Possível Abrir o Arquivo"));
        return {};
    default:
        return LeExtenso();
    }
}

} // namespace device
