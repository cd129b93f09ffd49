// Reading and writing the thirteen numbers of a layout.
#include "Posicoes.h"

#include <algorithm>
#include <QRegularExpression>
#include <QStringList>

namespace simulador {

std::optional<Posicoes> LePosicoes(const QString &texto)
{
    static const QRegularExpression numero(QStringLiteral("\\A[+-]?[0-9]{1,4}\\z"));
    const QStringList partes = texto.split(QLatin1Char(','));
    if (partes.size() != 13)
        return std::nullopt;
    Posicoes posicoes;
    for (std::size_t i = 0; i < 13; ++i) {
        const QString parte = partes.at(static_cast<qsizetype>(i)).trimmed();
        if (!numero.match(parte).hasMatch())
            return std::nullopt;
        int &destino = i < 5 ? posicoes.linhas.at(i) : posicoes.colunas.at(i - 5);
        destino = parte.toInt();
    }
    return posicoes;
}

QString EscrevePosicoes(const Posicoes &posicoes)
{
    QStringList partes;
    const auto acrescenta = [&partes](int numero) {
        const QString digitos = QString::number(std::abs(numero)).rightJustified(2, QLatin1Char('0'));
        partes << (numero < 0 ? QLatin1Char('-') + digitos : digitos);
    };
    std::for_each(posicoes.linhas.begin(), posicoes.linhas.end(), acrescenta);
    std::for_each(posicoes.colunas.begin(), posicoes.colunas.end(), acrescenta);
    return partes.join(QLatin1Char(','));
}

std::array<Lugar, kCamposDoBanco> LugaresDe(const Posicoes &posicoes)
{
    std::array<Lugar, kCamposDoBanco> lugares;
    for (std::size_t i = 0; i < lugares.size(); ++i) {
        // Day, month and year stand on the city's line, counted from its column.
        const int linha = posicoes.linhas.at(std::min<std::size_t>(i, 4));
        const int coluna = posicoes.colunas.at(i) + (i > 4 ? posicoes.colunas.at(4) : 0);
        lugares.at(i) = {std::clamp(linha, 1, kLinhas), std::clamp(coluna, 1, kColunas)};
    }
    return lugares;
}

} // namespace simulador
