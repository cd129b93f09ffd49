// See LinhaComando.h.
#include "app/LinhaComando.h"

#include "plataforma/basico/Texto.h"

namespace app {

void GuardaArgumento(ArgumentosLinha &argumentos, const QString &letra, const QString &valor)
{
    const struct {
        QLatin1StringView letra;
        std::size_t indice;
    } campos[] = {{QLatin1StringView("B"), 0}, {QLatin1StringView("V"), 1}, {QLatin1StringView("F"), 2},
                  {QLatin1StringView("L"), 3}, {QLatin1StringView("D"), 4}, {QLatin1StringView("C"), 6}};
    for (const auto &campo : campos)
        if (letra.toUpper() == campo.letra)
            argumentos[campo.indice] = plataforma::Trim(valor);
}

ArgumentosLinha LeLinhaComando(const QString &linha)
{
    ArgumentosLinha argumentos;
    int estado = 0; // 1: the letter comes next; 2: in the value
    QString letra;
    QString valor;
    const auto guarda = [&] {
        if (!valor.isEmpty())
            GuardaArgumento(argumentos, letra, valor);
        letra = QStringLiteral(" ");
        valor.clear();
    };
    for (const QChar caractere : linha) {
        if (caractere == QLatin1Char('/')) {
            guarda();
            estado = 1;
        } else if (estado == 1) {
            letra = caractere;
            estado = 2;
        } else if (estado == 2) {
            valor += caractere;
        }
    }
    guarda();
    return argumentos;
}

} // namespace app
