// Which line a port name means and how it is used: environment, then qx7032.conf, then the defaults.
#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace qx7032 {

struct Configuracao {
    std::string dispositivo;                    ///< path of the tty
    unsigned velocidade = 9600;                 ///< bits per second; 0 when what is written is no number
    std::chrono::milliseconds resposta{2000};   ///< for the device's confirmation and for quick orders
    std::chrono::milliseconds impressao{60000}; ///< for orders that move paper
};

/// Cuts blanks at both ends and turns small letters into capitals.
[[nodiscard]] std::string NormalizaPorta(const std::string &nome);

/// The folder of qx7032.conf, without "/" at its end: QX70_HOME when set, else the executable's.
[[nodiscard]] std::string PastaDoPrograma();

/// How to use a port.
/// @param porta a name from NormalizaPorta
/// @return nothing when the name is not COM1 to COM4 or is mapped to nothing
[[nodiscard]] std::optional<Configuracao> LeConfiguracao(const std::string &porta, const std::string &pasta);

} // namespace qx7032
