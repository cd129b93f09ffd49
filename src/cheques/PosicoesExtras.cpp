// See PosicoesExtras.h.
#include "cheques/PosicoesExtras.h"

#include "nucleo/QX_INI.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

#include <algorithm>
#include <cmath>

namespace cheques {

using namespace plataforma;

namespace {
constexpr double kMaiorInteiro = 32767;
}

QString ChaveDaPosicao(int n, int lado)
{
    return ChaveDoExtra(n) + (lado == LadoLinha ? QStringLiteral("Lin") : QStringLiteral("Col"));
}

int PosicaoDaChave(const QString &valor)
{
    QString numero = valor;
    if (!numero.isEmpty() && numero.back() < QLatin1Char('0'))
        numero.chop(1);
    const double lido = std::nearbyint(Val(numero));
    return static_cast<int>(std::clamp(lido, -kMaiorInteiro, kMaiorInteiro));
}

int LePosicao(const nucleo::QX_INI &ini, int n, int lado)
{
    return PosicaoDaChave(ini.GravaIni(kFrenteInfo, ChaveDaPosicao(n, lado)));
}

PosicaoExtra LePosicaoExtra(const nucleo::QX_INI &ini, int n)
{
    const auto le = [&](int lado) {
        const int lida = LePosicao(ini, n, lado);
        return static_cast<std::int16_t>(lida == kSemPosicao ? 0 : lida);
    };
    return {le(LadoLinha), le(LadoColuna)};
}

std::array<QString, 2> TextosDaPosicao(const PosicaoExtra &posicao)
{
    if (posicao.linha == 0 || posicao.coluna == 0)
        return {};
    return {QString::number(posicao.linha), QString::number(posicao.coluna)};
}

std::optional<QString> CortaPosicao(int lado, const QString &texto)
{
    const qsizetype limite = lado + 2;
    if (Len(texto) <= limite)
        return std::nullopt;
    return Left(texto, limite);
}

bool PosicaoAceita(const QString &linha, const QString &coluna)
{
    return !linha.isEmpty() && Val(linha) <= kUltimaLinha && !coluna.isEmpty() &&
           Val(coluna) <= kUltimaColuna;
}

} // namespace cheques
