// See QX_INI.h.
#include "nucleo/QX_INI.h"

#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

namespace nucleo {

namespace {
constexpr int kTamanhoDoBuffer = 160;
}

QString QX_INI::GravaIni(const QString &secao, const QString &chave, const QString &valor) const
{
    if (!valor.isEmpty()) {
        const bool gravou =
            m_arquivo.WritePrivateProfileString(secao, chave, valor == kVazio ? QString() : valor);
        return gravou ? QStringLiteral("1") : QStringLiteral("0");
    }
    const QString lido = m_arquivo.GetPrivateProfileString(secao, chave, kAusente, kTamanhoDoBuffer);
    // On purpose: a stored value that begins with -2 reads as a missing key.
    if (plataforma::Val(plataforma::Left(lido, 2)) == -2)
        return kAusente;
    const auto fim = lido.indexOf(QChar(0));
    return fim < 0 ? lido : lido.left(fim);
}

} // namespace nucleo
