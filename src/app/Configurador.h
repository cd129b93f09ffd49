// The device configuration tool, a program of its own: raised when it runs, started when it does not.
#pragma once

namespace nucleo {
class Sistema;
}

namespace app {

/// Looks for the tool's window among all windows and keeps its title in `JanelaConfigurador`, "0" when none.
/// Yields to the event loop after each window.
void ProcuraConfigurador(nucleo::Sistema &sistema);
/// Raises the tool or starts it; a tool that is not installed is told.
void AbreConfigurador(nucleo::Sistema &sistema);

} // namespace app
