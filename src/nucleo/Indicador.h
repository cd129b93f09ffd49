// What the device link shows on the main screen while it works.
#pragma once

#include "plataforma/basico/Ocupado.h"

#include <cstdint>

namespace nucleo {

/// The progress gauge of the main screen.
class Indicador {
public:
    virtual ~Indicador() = default;
    virtual void Valor(int porCento) = 0;    ///< 0 to 100
    virtual void Cor(std::uint32_t bgr) = 0; ///< blue-green-red number: 0x00FF00 green, 0x0000FF red
};

using plataforma::Espera;
using plataforma::Ocupado;

} // namespace nucleo
