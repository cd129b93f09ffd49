// See FonteFixa.h.
#include "reports/FonteFixa.h"

#include <QApplication>

namespace reports {

QFont FonteFixa()
{
    QFont fonte(QStringLiteral("Courier New"));
    fonte.setStyleHint(QFont::Monospace);
    fonte.setFixedPitch(true);
    fonte.setPointSizeF(QApplication::font().pointSizeF());
    return fonte;
}

} // namespace reports
