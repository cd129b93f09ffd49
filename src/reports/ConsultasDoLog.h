// Query texts of the log's list. What is typed goes in as it stands, with no quoting.
#pragma once

#include <QString>

namespace reports {

/// What the eight fields of the filter hold; an empty one asks for nothing.
struct CamposDoFiltro {
    QString banco, dataIni, dataFim, valorIni, valorFim, favor, local, comentario;
};

/// Query of MontaFiltro. On purpose: not every set of fields gives a query that the engine accepts.
QString ConsultaDoFiltro(const CamposDoFiltro &campos);

/// Query of MontaListaLog; with five empty texts the whole log.
QString ConsultaDaLista(const QString &banco, const QString &dataIni, const QString &dataFim,
                        const QString &valorIni, const QString &valorFim);

} // namespace reports
