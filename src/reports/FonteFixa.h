// The type in which columns stand under one another.
#pragma once

#include <QFont>

namespace reports {

/// "Courier New", or what the machine has in its place, in the size of the screens.
QFont FonteFixa();

} // namespace reports
