// Words of the query dialect: names, texts in quotes, numbers and signs.
#pragma once

#include <QList>
#include <QString>

namespace plataforma::jet {

struct Palavra {
    enum Tipo { Nome, NomeEntreColchetes, Texto, Numero, Sinal, Fim };
    Tipo tipo = Fim;
    QString texto;         ///< without quotes and brackets; doubled quotes made single
    qsizetype posicao = 0; ///< in the query, from 0
};

/// The words of the first statement, with one of type Fim behind the last. What follows a ";" is never looked
/// at; the ";" itself is the text of that last word.
/// @throws RuntimeError 3075 an open quote or bracket, a sign that the dialect has not, a text too long
QList<Palavra> SeparaPalavras(const QString &consulta);

} // namespace plataforma::jet
