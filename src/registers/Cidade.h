// Cidade: the register of cities.
#pragma once

#include "registers/CadastroDeNomes.h"

namespace registers {

class Cidade final : public CadastroDeNomes {
    Q_OBJECT
public:
    Cidade(nucleo::Sistema &sistema, AbreSaida abreSaida, QWidget *pai);
};

} // namespace registers
