// See RegrasDoFiltro.h.
#include "reports/RegrasDoFiltro.h"

#include "nucleo/DatasDeEntrada.h"
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"
#include "reports/Quantia.h"

namespace reports {

using namespace plataforma;

namespace {

constexpr qsizetype kTamanhoDaData = 6;

const QString kErro = QStringLiteral("Erro");
const AvisoDoFiltro kDataIncompleta{QStringLiteral("Voce deve entrar com (ddmmaa) diamesano..."), kErro};
const AvisoDoFiltro kDataInvalida{QStringLiteral("Data Inválida..."), {}};
const AvisoDoFiltro kValorInvalido{QStringLiteral("O valor especificado não é um valor válido!"), kErro};

qsizetype LimiteDe(int indice)
{
    switch (indice) {
    case FiltroBanco:
        return 3;
    case FiltroDataIni:
    case FiltroDataFim:
        return 8;
    default:
        return 0;
    }
}

} // namespace

std::optional<QString> CortaCampoDoFiltro(int indice, const QString &texto)
{
    const qsizetype limite = LimiteDe(indice);
    if (limite == 0 || Len(texto) <= limite)
        return std::nullopt;
    return Left(texto, limite);
}

std::optional<QString> BancoDoFiltroAoSair(const QString &texto)
{
    const double numero = Val(texto);
    if (numero <= 0)
        return std::nullopt;
    return Format(numero, QStringLiteral("000"));
}

CampoAoSair DataDoFiltroAoSair(const QString &texto, const QDate &hoje)
{
    if (texto.isEmpty())
        return {texto, {}};
    const QString data =
        Len(texto) < 3 ? Format(texto, QStringLiteral("00")) + Right(nucleo::HojeParaCampo(hoje), 4) : texto;
    if (Len(data) != kTamanhoDaData)
        return {texto, kDataIncompleta};
    if (!nucleo::DataValida(data))
        return {texto, kDataInvalida};
    return {Format(data, QStringLiteral("@@/@@/@@")), {}};
}

CampoAoSair ValorDoFiltroAoSair(const QString &texto)
{
    if (texto.isEmpty())
        return {texto, {}};
    if (!IsNumeric(texto))
        return {texto, kValorInvalido};
    return {EscreveQuantia(CDbl(texto)), {}};
}

int ProximoCampoDoFiltro(int indice)
{
    return indice == FiltroLocal ? kAceitaOFiltro : indice + 1;
}

} // namespace reports
