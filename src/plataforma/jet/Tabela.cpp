// What the dialect must know of a table: its fields, and the key by which a row is found again.
#include "Tabela.h"

namespace plataforma::jet {

qsizetype Tabela::IndiceDe(const QString &campo) const
{
    for (qsizetype i = 0; i < colunas.size(); ++i) {
        if (colunas[i].nome.compare(campo, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

QString NomeCitado(const QString &nome)
{
    return '"' + QString(nome).replace('"', "\"\"") + '"';
}

QString TextoCitado(const QString &texto)
{
    return '\'' + QString(texto).replace('\'', "''") + '\'';
}

} // namespace plataforma::jet
