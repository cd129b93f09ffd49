// See RegrasDoAjuste.h.
#include "registers/RegrasDoAjuste.h"

#include "plataforma/basico/Numero.h"
#include "registers/CaixasDoBanco.h"

#include <cstddef>

namespace registers {

namespace {

constexpr double kPassoDaLargura = 70;
constexpr int kPartesDaData = 3;
constexpr int kCelulaDoDia = 10;
constexpr int kCelulaDaCidade = 9;

struct LimitesDaLinha {
    double acima;
    double abaixo;
};
// A field stops on its upper limit and one line under its lower one. Those of the date follow the city.
constexpr std::array<LimitesDaLinha, kCamposDoAjuste> kLimites = {
    {{1, 4}, {4, 8}, {6, 11}, {8, 14}, {10, 16}, {0, 0}, {0, 0}, {0, 0}}};

const std::array<QString, kCamposDoAjuste> kAmostras = {
    QStringLiteral("    #9.999,99#"),
    QStringLiteral("Nove Mil, Novecentos e Noventa e Nove Reais"),
    QStringLiteral("e Noventa e Nove CentavosXXXXXXXXXXXXXXX"),
    QStringLiteral("Maria Aparecida da Silva"),
    QStringLiteral("Belo Horizonte"),
    QStringLiteral("14"),
    QStringLiteral("Junho"),
    QStringLiteral("2003")};

std::size_t Posicao(int indice)
{
    return static_cast<std::size_t>(indice);
}

bool ParteDaData(int campo)
{
    return campo >= AjusteDia;
}

bool LinhaDoExtenso(int campo)
{
    return campo == AjusteExtenso1 || campo == AjusteExtenso2;
}

double LarguraDaAmostra(int campo)
{
    const double texto = static_cast<double>(AmostraDoCampo(campo).size()) * kUnidadesPorColuna;
    return ParteDaData(campo) ? texto + kRecuoDaData : texto;
}

void VaiParaEsquerda(Lugar &lugar, int campo)
{
    if (ColunasAntes(lugar.esquerda) > 0)
        lugar.esquerda -= kUnidadesPorColuna;
    const double x = ColunasAntes(lugar.esquerda);
    if (x < 119 && ((campo == AjusteFavorecido && x > 110) || (LinhaDoExtenso(campo) && x > 75)))
        lugar.largura += kPassoDaLargura;
}

// On purpose: a words line begins to shrink at 74, and to grow again at 75, so that it comes back narrower.
void VaiParaDireita(Lugar &lugar, int campo)
{
    if (ColunasAntes(lugar.esquerda) >= 118)
        return;
    lugar.esquerda += kUnidadesPorColuna;
    const double x = ColunasAntes(lugar.esquerda);
    if ((campo == AjusteFavorecido && x > 110) || (LinhaDoExtenso(campo) && x > 74))
        lugar.largura -= kPassoDaLargura;
}

// false when the limit of the field's lines ends the key.
bool Sobe(Lugar &lugar, int campo)
{
    const double y = LinhasAcima(lugar.topo);
    if (y + 1 < kLimites.at(Posicao(campo)).acima)
        return false;
    if (y > 0)
        lugar.topo -= kUnidadesPorLinha;
    return true;
}

bool Desce(Lugar &lugar, int campo)
{
    const double y = LinhasAcima(lugar.topo);
    if (y + 1 > kLimites.at(Posicao(campo)).abaixo)
        return false;
    if (y < 20)
        lugar.topo += kUnidadesPorLinha;
    return true;
}

// The date has no line of its own.
void PoeADataNaLinhaDaCidade(LugaresDoAjuste &lugares)
{
    for (const int campo : {AjusteDia, AjusteMes, AjusteAno})
        lugares.at(Posicao(campo)).topo = lugares.at(AjusteCidade).topo;
}

} // namespace

const QString &AmostraDoCampo(int campo)
{
    return kAmostras.at(Posicao(campo));
}

CelulasDoCampo CelulasDe(int campo)
{
    return ParteDaData(campo) ? CelulasDoCampo{AjusteCidade, campo + 5} : CelulasDoCampo{campo, campo + 5};
}

LugaresDoAjuste ColocaCampos(const std::array<QString, 8> &linhas, const std::array<QString, 11> &colunas)
{
    LugaresDoAjuste lugares;
    for (int campo = 0; campo < kCamposDoAjuste; ++campo) {
        Lugar &lugar = lugares.at(Posicao(campo));
        const double numero = NumeroDoLeiaute(colunas.at(Posicao(campo)));
        lugar.largura = LarguraDaAmostra(campo);
        if (ParteDaData(campo)) {
            lugar.esquerda = EsquerdaDaParteDaData(lugares.at(AjusteCidade).esquerda, numero);
            continue;
        }
        lugar.esquerda = EsquerdaDaColuna(numero);
        lugar.topo = TopoDaLinha(NumeroDoLeiaute(linhas.at(Posicao(campo))));
    }
    PoeADataNaLinhaDaCidade(lugares);
    return lugares;
}

bool AplicaTecla(LugaresDoAjuste &lugares, int campo, int tecla)
{
    Lugar &lugar = lugares.at(Posicao(campo));
    bool seta = true;
    switch (tecla) {
    case plataforma::TeclaEsquerda:
        VaiParaEsquerda(lugar, campo);
        break;
    case plataforma::TeclaDireita:
        VaiParaDireita(lugar, campo);
        break;
    case plataforma::TeclaAcima:
        if (!Sobe(lugar, campo))
            return false;
        break;
    case plataforma::TeclaAbaixo:
        if (!Desce(lugar, campo))
            return false;
        break;
    default:
        seta = false;
    }
    PoeADataNaLinhaDaCidade(lugares);
    return seta;
}

void LevaCampo(LugaresDoAjuste &lugares, int campo, double esquerda, double topo)
{
    const Lugar &lugar = lugares.at(Posicao(campo));
    const auto anda = [&](int tecla, double passo, const auto &falta) {
        while (falta() > passo / 2) {
            const double antes = falta();
            AplicaTecla(lugares, campo, tecla);
            if (falta() >= antes) // a limit
                return;
        }
    };
    anda(plataforma::TeclaEsquerda, kUnidadesPorColuna, [&] { return lugar.esquerda - esquerda; });
    anda(plataforma::TeclaDireita, kUnidadesPorColuna, [&] { return esquerda - lugar.esquerda; });
    anda(plataforma::TeclaAcima, kUnidadesPorLinha, [&] { return lugar.topo - topo; });
    anda(plataforma::TeclaAbaixo, kUnidadesPorLinha, [&] { return topo - lugar.topo; });
}

LeituraDoAjuste LeCampos(const LugaresDoAjuste &lugares)
{
    LeituraDoAjuste leitura;
    for (int campo = 0; campo < kCamposDoAjuste; ++campo) {
        const Lugar &lugar = lugares.at(Posicao(campo));
        const CelulasDoCampo celulas = CelulasDe(campo);
        if (!ParteDaData(campo))
            leitura.at(Posicao(celulas.linha)) = LeLinha(lugar.topo);
        leitura.at(Posicao(celulas.coluna)) =
            ParteDaData(campo) ? LeColunaDaParteDaData(lugar.esquerda) : LeColuna(lugar.esquerda);
    }
    return leitura;
}

void DevolveAsCaixas(const LeituraDoAjuste &leitura, CaixasDoBanco &caixas)
{
    for (int celula = 0; celula < kCelulaDoDia; ++celula)
        caixas.PoeCaixa(kPrimeiraLinha + celula, leitura.at(Posicao(celula)));
    const double cidade = plataforma::Val(leitura.at(kCelulaDaCidade));
    for (int parte = 0; parte < kPartesDaData; ++parte) {
        const double coluna = plataforma::Val(leitura.at(Posicao(kCelulaDoDia + parte)));
        caixas.PoeCaixa(kCaixaDoDia + parte, EmTresAlgarismos(coluna - cidade));
    }
}

bool CamposEmOrdem(const LugaresDoAjuste &lugares)
{
    for (std::size_t campo = AjusteValor; campo < AjusteCidade; ++campo) {
        if (lugares.at(campo).topo >= lugares.at(campo + 1).topo)
            return false;
    }
    for (std::size_t campo = AjusteCidade; campo < AjusteAno; ++campo) {
        if (lugares.at(campo).esquerda >= lugares.at(campo + 1).esquerda)
            return false;
    }
    return true;
}

} // namespace registers
