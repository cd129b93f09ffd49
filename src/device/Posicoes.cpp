// Limits of the lines and columns of a bank layout.
#include "device/Posicoes.h"

#include "plataforma/basico/Numero.h"

namespace device {

namespace {

using plataforma::Val;

struct Faixa {
    size_t caixa;
    double de;
    double ate;
};

struct Soma {
    size_t caixa;
    double ate;
};

constexpr double kPrimeiroBancoIsento = 995;
constexpr size_t kColunaDaCidade = 11;
constexpr double kUltimaColuna = 118;
constexpr std::array<Faixa, 5> kLinhas{{{2, 1, 5}, {3, 4, 9}, {4, 6, 12}, {5, 8, 15}, {6, 10, 17}}};
constexpr std::array<size_t, 5> kColunas{7, 8, 9, 10, 11};
constexpr std::array<Soma, 3> kPartesDaData{{{12, 114}, {13, 116}, {14, 118}}};
/// Boxes whose text must stand below that of the next box.
constexpr std::array<size_t, 6> kCrescentes{2, 3, 4, 5, 12, 13};

bool EmOrdem(const TextosDoBanco &textos)
{
    // On purpose: a comparison of the texts, not of the numbers in them.
    for (const size_t caixa : kCrescentes) {
        if (QString::compare(textos.at(caixa), textos.at(caixa + 1)) >= 0)
            return false;
    }
    return true;
}

bool LinhasNaFaixa(const TextosDoBanco &textos)
{
    for (const Faixa &faixa : kLinhas) {
        const double linha = Val(textos.at(faixa.caixa));
        if (linha < faixa.de || linha > faixa.ate)
            return false;
    }
    return true;
}

bool ColunasNaFaixa(const TextosDoBanco &textos)
{
    for (const size_t caixa : kColunas) {
        if (Val(textos.at(caixa)) > kUltimaColuna)
            return false;
    }
    const double cidade = Val(textos.at(kColunaDaCidade));
    for (const Soma &parte : kPartesDaData) {
        if (Val(textos.at(parte.caixa)) + cidade > parte.ate)
            return false;
    }
    return true;
}

} // namespace

bool IsentoDasPosicoes(const QString &codigo)
{
    return Val(codigo) >= kPrimeiroBancoIsento;
}

bool VerificaPosicoes(const TextosDoBanco &textos)
{
    if (IsentoDasPosicoes(textos.at(0)))
        return true;
    return EmOrdem(textos) && LinhasNaFaixa(textos) && ColunasNaFaixa(textos);
}

} // namespace device
