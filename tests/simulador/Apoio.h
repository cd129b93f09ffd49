// Shared by the simulator's tests: orders as the host builds them, and readable failures.
#pragma once

#include <initializer_list>
#include <ostream>
#include <QString>
#include <string>
#include <variant>
#include <vector>

#include "Dispositivo.h"
#include "qx7032/Argumentos.h"
#include "qx7032/Quadro.h"

inline void PrintTo(const QString &texto, std::ostream *os)
{
    *os << '"' << texto.toStdString() << '"';
}

namespace simulador {
inline void PrintTo(const LinhaDeFolha &linha, std::ostream *os)
{
    *os << '"' << linha.texto.toStdString() << "\" in " << linha.largura << (linha.enfase ? " bold" : "")
        << (linha.invertida ? " inverted" : "");
}
inline void PrintTo(const Lugar &lugar, std::ostream *os)
{
    *os << "line " << lugar.linha << ", column " << lugar.coluna;
}
} // namespace simulador

namespace apoio {

/// An argument of an order: a text in the device's bytes or a number.
using Argumento = std::variant<std::string, int>;

inline qx7032::Quadro Quadro(char tipo, std::vector<Argumento> argumentos, int sequencia = 0)
{
    qx7032::EscritorDeArgumentos escritor;
    for (const Argumento &argumento : argumentos) {
        if (const auto *texto = std::get_if<std::string>(&argumento))
            escritor.Texto(*texto);
        else
            escritor.Numero(static_cast<std::int16_t>(std::get<int>(argumento)));
    }
    return {tipo, static_cast<std::uint8_t>(sequencia), escritor.Carga()};
}

inline qx7032::Evento Ordem(char tipo, std::vector<Argumento> argumentos, int sequencia = 0)
{
    qx7032::Evento evento;
    evento.tipo = qx7032::Evento::Tipo::Quadro;
    evento.quadro = Quadro(tipo, std::move(argumentos), sequencia);
    return evento;
}

inline qx7032::Evento Linha(const std::string &texto)
{
    qx7032::Evento evento;
    evento.tipo = qx7032::Evento::Tipo::Linha;
    evento.texto = texto;
    return evento;
}

inline qx7032::Evento Comando(qx7032::Evento::Tipo tipo, int digitos = 0)
{
    qx7032::Evento evento;
    evento.tipo = tipo;
    evento.digitos = digitos;
    return evento;
}

/// The layout that an empty bank entry offers.
inline const char *const kPosicoes = "01,05,07,10,13,92,17,09,11,50,31,40,65";

/// Line `linha` of the document's text, without the blanks at its end.
inline QString LinhaDe(const simulador::Documento &documento, int linha)
{
    QString texto = simulador::Grade(documento).split(QLatin1Char('\n')).at(linha - 1);
    while (texto.endsWith(QLatin1Char(' ')))
        texto.chop(1);
    return texto;
}

} // namespace apoio
