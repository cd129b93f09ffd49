// See Verso.h.
#include "cheques/Verso.h"

#include "nucleo/QX_INI.h"
#include "plataforma/basico/Texto.h"

#include <algorithm>

namespace cheques {

namespace {

const QString kVerso = QStringLiteral("Verso");
constexpr qsizetype kRecuo = 15;
constexpr qsizetype kColunasDoModo3 = 80;

} // namespace

QString LeVerso(const nucleo::QX_INI &ini, int i)
{
    const QString lido = ini.GravaIni(kVerso, ChaveDoVerso(i));
    return lido == nucleo::kAusente ? QString() : lido;
}

void GravaVerso(const nucleo::QX_INI &ini, int i, const QString &texto)
{
    ini.GravaIni(kVerso, ChaveDoVerso(i), texto.isEmpty() ? QStringLiteral(" ") : texto);
}

bool PoeLinhaDoVerso(const std::array<QString, kLinhasDoVerso> &linhas, int i, TextoDoVerso &verso)
{
    const auto primeira = linhas.begin() + i;
    if (std::all_of(primeira, linhas.end(), [](const QString &linha) { return linha.isEmpty(); }))
        return false;
    // An empty line between filled ones is sent bare; one blank is a text like any other.
    if (!primeira->isEmpty()) {
        const QString recuada = plataforma::Space(kRecuo) + *primeira;
        if (plataforma::Len(recuada) > kColunasDoModo3)
            verso.modo = 2;
        verso.texto += recuada;
    }
    verso.texto += QLatin1Char('\n');
    return true;
}

} // namespace cheques
