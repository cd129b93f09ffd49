// See RegrasDasOpcoes.h.
#include "housekeeping/RegrasDasOpcoes.h"

#include "nucleo/Sistema.h"
#include "plataforma/basico/Numero.h"

#include <algorithm>

namespace housekeeping {

namespace {

struct Prazo {
    std::size_t indice; // Text01
    QString chave;
    int nucleo::Sistema::*variavel;
};
const std::array<Prazo, kPrazosDasOpcoes> kPrazos = {{
    {0, QStringLiteral("PeriodoRelExc"), &nucleo::Sistema::PeriodoRelExc},
    {1, QStringLiteral("PeriodoCopExc"), &nucleo::Sistema::PeriodoCopExc},
    {2, QStringLiteral("NumChkPgRel"), &nucleo::Sistema::NumChkPgRel},
}};

const QString &Texto(const Prazo &prazo, const OpcoesNaTela &tela)
{
    return tela.textos.at(prazo.indice);
}

// A box that was never used may show a stored number out of bounds: it is as it is in memory, and stays so.
bool Mudou(const Prazo &prazo, const OpcoesNaTela &tela, const nucleo::Sistema &sistema)
{
    return Texto(prazo, tela) != QString::number(sistema.*prazo.variavel);
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
    const auto gravaSeMudou = [&](const Prazo &prazo) {
        if (Mudou(prazo, tela, sistema))
            chaves.emplace_back(prazo.chave, Texto(prazo, tela));
    };
    gravaSeMudou(kPrazos[0]);
    gravaSeMudou(kPrazos[1]);
    chaves.emplace_back(QStringLiteral("UsarImpInv"), UmOuZero(tela.impressaoInvertida));
    chaves.emplace_back(QStringLiteral("NumCObrig"), UmOuZero(tela.numeroObrigatorio));
    gravaSeMudou(kPrazos[2]);
    return chaves;
}

OpcoesNaTela OpcoesEmMemoria(const nucleo::Sistema &sistema)
{
    OpcoesNaTela tela;
    for (const Prazo &prazo : kPrazos)
        tela.textos.at(prazo.indice) = QString::number(sistema.*prazo.variavel);
    tela.impressaoInvertida = sistema.UsarImpInv == 1;
    tela.numeroObrigatorio = sistema.NumCObrig == 1;
    return tela;
}

void TomaOpcoes(const OpcoesNaTela &tela, nucleo::Sistema &sistema)
{
    for (const Prazo &prazo : kPrazos)
        if (Mudou(prazo, tela, sistema))
            sistema.*prazo.variavel = static_cast<int>(plataforma::Val(Texto(prazo, tela)));
    sistema.UsarImpInv = tela.impressaoInvertida ? 1 : 0;
    sistema.NumCObrig = tela.numeroObrigatorio ? 1 : 0;
}

} // namespace housekeeping
