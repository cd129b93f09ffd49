// See RegrasDasOpcoes.h.
#include "housekeeping/RegrasDasOpcoes.h"

#include "nucleo/Sistema.h"
#include "plataforma/basico/Numero.h"

#include <algorithm>

namespace housekeeping {

namespace {

// The options of the boxes Text01, in their order.
const std::array<const nucleo::Opcao *, kPrazosDasOpcoes> kPrazos = {
    &nucleo::kPeriodoRelExc, &nucleo::kPeriodoCopExc, &nucleo::kNumChkPgRel};

// A box that was never used may show a stored number out of bounds: it is as it is in memory, and stays so.
bool Mudou(std::size_t i, const OpcoesNaTela &tela, const nucleo::Sistema &sistema)
{
    return tela.textos.at(i) != QString::number(sistema.*kPrazos.at(i)->variavel);
}

QString UmOuZero(bool valor)
{
    return valor ? QStringLiteral("1") : QStringLiteral("0");
}

} // namespace

int OpcaoAoSair(const QString &texto)
{
    return static_cast<int>(std::clamp<double>(plataforma::Val(texto), kMenorOpcao, kMaiorOpcao));
}

std::vector<std::pair<QString, QString>> ChavesAGravar(const OpcoesNaTela &tela,
                                                       const nucleo::Sistema &sistema)
{
    std::vector<std::pair<QString, QString>> chaves;
    const auto gravaSeMudou = [&](std::size_t i) {
        if (Mudou(i, tela, sistema))
            chaves.emplace_back(kPrazos.at(i)->chave, tela.textos.at(i));
    };
    gravaSeMudou(0);
    gravaSeMudou(1);
    chaves.emplace_back(nucleo::kUsarImpInv.chave, UmOuZero(tela.impressaoInvertida));
    chaves.emplace_back(nucleo::kNumCObrig.chave, UmOuZero(tela.numeroObrigatorio));
    gravaSeMudou(2);
    return chaves;
}

OpcoesNaTela OpcoesEmMemoria(const nucleo::Sistema &sistema)
{
    OpcoesNaTela tela;
    for (std::size_t i = 0; i < kPrazos.size(); ++i)
        tela.textos.at(i) = QString::number(sistema.*kPrazos.at(i)->variavel);
    tela.impressaoInvertida = sistema.UsarImpInv == 1;
    tela.numeroObrigatorio = sistema.NumCObrig == 1;
    return tela;
}

void TomaOpcoes(const OpcoesNaTela &tela, nucleo::Sistema &sistema)
{
    for (std::size_t i = 0; i < kPrazos.size(); ++i)
        if (Mudou(i, tela, sistema))
            sistema.*kPrazos.at(i)->variavel = static_cast<int>(plataforma::Val(tela.textos.at(i)));
    sistema.UsarImpInv = tela.impressaoInvertida ? 1 : 0;
    sistema.NumCObrig = tela.numeroObrigatorio ? 1 : 0;
}

} // namespace housekeeping
