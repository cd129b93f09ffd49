// The windows of the desktop by their titles, as the X11 window manager lists them.
#pragma once

#include <functional>
#include <QString>
#include <QStringList>

namespace plataforma {

/// Titles of all managed windows, oldest first; windows without a title are left out. Empty without an X11
/// display or a window manager. The display is opened for the call only.
[[nodiscard]] QStringList TitulosDasJanelas();

/// Calls `visita` with each of those titles, and yields to the event loop after each one. Titles are asked
/// one by one, so that a window which goes meanwhile is passed over.
void PercorreJanelas(const std::function<void(const QString &titulo)> &visita);

/// Brings the oldest window of exactly this title to the front, from its icon if it is minimised.
/// @return whether there is such a window and the window manager was asked
bool AtivaJanela(const QString &titulo);

} // namespace plataforma
