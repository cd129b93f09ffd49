// The dialogue that asks for the name of a text file to write.
#pragma once

#include <QString>

namespace plataforma {

/// Asks for a text file, over the active window. It opens in the current folder; a name without extension
/// gets ".txt", and a file that exists is taken only when the operator agrees. Whatever the answer, the
/// current folder is `pasta` afterwards.
/// @return the full name, empty when none was given
QString ShowSave(const QString &pasta);

} // namespace plataforma
