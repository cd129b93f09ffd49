// See RegrasDoBanco.h.
#include "registers/RegrasDoBanco.h"

#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

#include "registers/RegrasDoCadastro.h"

#include <QStringList>

namespace registers {

using plataforma::Format;
using plataforma::Val;

namespace {

constexpr int kTamanhoDoNumero = 3;
constexpr int kTamanhoDoNome = 30;
constexpr int kNomeNoFormato = 20;

// The layout of most forms: lines, columns, distances of day, month and year from the city.
constexpr std::array<int, 13> kLeiauteUsual = {1, 5, 7, 10, 13, 92, 17, 9, 11, 50, 31, 40, 65};

} // namespace

QString CampoDaCaixa(int indice)
{
    if (indice < kPrimeiraLinha)
        return indice == 0 ? kCampoCodigo : kCampoNome;
    return indice < kPrimeiraColuna ? QStringLiteral("L%1").arg(indice - kPrimeiraLinha + 1)
                                    : QStringLiteral("C%1").arg(indice - kPrimeiraColuna + 1);
}

int LimiteDaCaixa(int indice)
{
    return indice == 1 ? kTamanhoDoNome : kTamanhoDoNumero;
}

QString TextoDoFormato(const TextosDoBanco &caixas)
{
    QStringList numeros;
    for (std::size_t i = kPrimeiraLinha; i < caixas.size(); ++i)
        numeros << (Val(caixas[i]) < 100 ? Format(Val(caixas[i]), QStringLiteral("00")) : caixas[i]);
    return numeros.join(QLatin1Char(',')) + QStringLiteral("    ; ") +
           plataforma::Left(caixas[1], kNomeNoFormato);
}

bool FormatoFalhou(const QString &resultado)
{
    return Val(resultado) < 0;
}

TextosDoBanco PreparaAjuste(TextosDoBanco caixas)
{
    bool algum = false;
    for (std::size_t i = kPrimeiraLinha; i < caixas.size(); ++i) {
        const double valor = Val(caixas[i]);
        algum = algum || valor > 0;
        // On purpose: what is missing in a layout of which something stands gets no default of its own.
        caixas[i] = Format(valor > 0 ? valor : 2.0 * static_cast<double>(i), kTresDigitos);
    }
    for (std::size_t i = 0; !algum && i < kLeiauteUsual.size(); ++i)
        caixas[i + kPrimeiraLinha] = Format(kLeiauteUsual[i], kTresDigitos);
    return caixas;
}

} // namespace registers
