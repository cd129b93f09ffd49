// Names of the faults, and how they are used up.
#include "Falha.h"

#include <algorithm>

namespace simulador {

void Falha::Gasta()
{
    if (documentos > 0 && --documentos == 0)
        tipo = TipoDeFalha::Nenhuma;
}

const std::vector<NomeDeFalha> &NomesDeFalhas()
{
    static const std::vector<NomeDeFalha> nomes = {
        {TipoDeFalha::Nenhuma, "nenhuma", "Nenhuma falha"},
        {TipoDeFalha::SemDocumento, "sem-documento", "Sem documento"},
        {TipoDeFalha::FimDePapel, "fim-de-papel", "Fim de papel"},
        {TipoDeFalha::Silencio, "silencio", "Silêncio na linha"},
        {TipoDeFalha::Lixo, "lixo", "Lixo na linha"},
        {TipoDeFalha::Queda, "queda", "Queda da linha no meio da resposta"},
        {TipoDeFalha::Lenta, "lenta", "Resposta lenta"},
        {TipoDeFalha::ImprimeEErra, "imprime-e-erra", "Imprime e responde erro"},
        {TipoDeFalha::SemFim, "sem-fim", "Imprime e não responde"},
        {TipoDeFalha::Nak, "nak", "Quadro danificado"},
    };
    return nomes;
}

std::optional<Falha> LeFalha(const QString &texto)
{
    const qsizetype doisPontos = texto.indexOf(QLatin1Char(':'));
    const QString nome = texto.left(doisPontos).trimmed(); // all of it without a colon
    const auto &nomes = NomesDeFalhas();
    const auto achado =
        std::find_if(nomes.begin(), nomes.end(), [&nome](const NomeDeFalha &n) { return n.nome == nome; });
    if (achado == nomes.end())
        return std::nullopt;
    Falha falha{achado->tipo, 0};
    if (doisPontos < 0)
        return falha;
    bool lido = false;
    falha.documentos = texto.mid(doisPontos + 1).toInt(&lido);
    if (!lido || falha.documentos < 1 || falha.documentos > 9999 || falha.tipo == TipoDeFalha::Nenhuma)
        return std::nullopt;
    return falha;
}

QString EscreveFalha(const Falha &falha)
{
    for (const NomeDeFalha &nome : NomesDeFalhas()) {
        if (nome.tipo == falha.tipo)
            return falha.documentos > 0 ? nome.nome + QLatin1Char(':') + QString::number(falha.documentos)
                                        : nome.nome;
    }
    return {};
}

} // namespace simulador
