// Fuzz: any text under any pattern. Only RuntimeError may come out, and what is read agrees with what is
// judged.
#include "plataforma/basico/Data.h"
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Texto.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>

using namespace plataforma;

namespace {

void Exige(bool verdade)
{
    if (!verdade) {
        std::abort();
    }
}

/// Runs one call; true when it failed with a RuntimeError.
template <typename Chamada> bool Falhou(Chamada chamada)
{
    try {
        chamada();
    } catch (const RuntimeError &erro) {
        Exige(erro.number() != 0 && !erro.text().isEmpty());
        return true;
    }
    return false;
}

QString Texto(FuzzedDataProvider &dados)
{
    const std::string bytes = dados.ConsumeRandomLengthString(200);
    const QByteArray texto(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return dados.ConsumeBool() ? FromAnsi(texto) : QString::fromUtf8(texto);
}

void Recorta(const QString &texto, qsizetype p, qsizetype n)
{
    Exige(Falhou([&] { Exige(texto.startsWith(Left(texto, n))); }) == (n < 0));
    Exige(Falhou([&] { Exige(texto.endsWith(Right(texto, n))); }) == (n < 0));
    Exige(Falhou([&] { Exige(Len(Mid(texto, p, n)) <= n); }) == (p < 1 || n < 0));
    Exige(Trim(texto) == LTrim(RTrim(texto)));
    Exige(Len(UCase(texto)) == Len(texto) && ToAnsi(texto).size() == Len(texto));
}

void LeNumeroEData(const QString &texto)
{
    double valor = 0;
    Exige(Falhou([&] { valor = CDbl(texto); }) != IsNumeric(texto));
    Exige(std::isfinite(valor) && std::isfinite(Val(texto)));
    QDate data;
    Exige(Falhou([&] { data = CVDate(texto); }) != IsDate(texto));
    Exige(data.isNull() || CVDate(DateText(data)) == data);
}

void Formata(double valor, const QString &texto, const QString &padrao)
{
    Exige(!Falhou([&] { (void)Format(texto, padrao); }));
    Exige(Falhou([&] { (void)Format(valor, padrao); }) != std::isfinite(valor));
    Exige(Falhou([&] { (void)Centavos(valor); }) != std::isfinite(valor));
    if (std::fabs(valor) < 1e12) {
        Exige(Centavos(CDbl(Format(valor, QStringLiteral("#,##0.00")))) == Centavos(valor));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t tamanho)
{
    FuzzedDataProvider dados(bytes, tamanho);
    const auto p = dados.ConsumeIntegralInRange<qsizetype>(-3, 300);
    const auto n = dados.ConsumeIntegralInRange<qsizetype>(-3, 300);
    const auto valor = dados.ConsumeFloatingPoint<double>();
    const QString texto = Texto(dados);
    const QString padrao = Texto(dados);
    Recorta(texto, p, n);
    LeNumeroEData(texto);
    Formata(valor, texto, padrao);
    Exige(Like(texto, texto + QLatin1Char('*')) || texto.contains(QLatin1Char('[')) ||
          texto.contains(QLatin1Char('#')));
    (void)Like(texto, padrao);
    return 0;
}
