// The settings that the clerk saves one after the other, as known to the clerk and to the test that kills it.
#pragma once

#include <array>
#include <QString>

namespace inteira {

struct Ajuste {
    QString secao;
    QString chave;
    QString valor;
    QString controle; ///< of the main screen: a field saved by F4, or an option saved by a click
    [[nodiscard]] bool EOpcao() const { return controle.startsWith(QStringLiteral("Option")); }
};

inline constexpr int kCamposExtrasSalvos = 3;
inline constexpr int kLinhasSalvas = 10;
inline constexpr int kAjustes = kCamposExtrasSalvos + kLinhasSalvas + 1; ///< then they begin anew

/// The nth saving, from 1; values differ from one round to the next, in length too.
inline Ajuste AjusteDe(int n)
{
    const int qual = (n - 1) % kAjustes;
    const QString texto = QStringLiteral("v%1").arg(n) + QString(n % 7, QLatin1Char('x'));
    if (qual < kCamposExtrasSalvos)
        return {QStringLiteral("FrenteInfo"), QStringLiteral("Campo0%1").arg(qual), texto,
                QStringLiteral("TxtCpo(%1)").arg(qual)};
    const int linha = qual - kCamposExtrasSalvos;
    if (linha < kLinhasSalvas)
        return {QStringLiteral("Verso"), QStringLiteral("Linha0%1").arg(linha), texto,
                QStringLiteral("Text2(%1)").arg(linha)};
    constexpr std::array kDigitos = {1, 2, 4};
    const auto opcao = static_cast<std::size_t>((n - 1) / kAjustes % 3);
    return {QStringLiteral("Opcoes"), QStringLiteral("ConfiguraData"), QString::number(kDigitos[opcao]),
            QStringLiteral("Option%1").arg(opcao + 1)};
}

} // namespace inteira
