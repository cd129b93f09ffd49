// Whether Tab walks a screen in reading order, judged by where the controls stand.
#pragma once

#include <QStringList>

class QWidget;

namespace teste {

/// Names of the controls that Tab stops at, row by row and from left to right inside each row of the layouts.
QStringList OrdemDeLeitura(const QWidget &tela);
/// Names of the controls that Tab passes, from the one that has the focus until it comes round; it ends with
/// a name told twice when Tab is held somewhere.
QStringList VoltaDoTab(QWidget &tela);
/// A list turned so that it begins with `primeiro`.
QStringList APartirDe(const QStringList &lista, const QString &primeiro);

} // namespace teste
