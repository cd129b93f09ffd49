// Favorec: the register of payees, which also keeps the device's own table of them.
#pragma once

#include "registers/CadastroDeNomes.h"

namespace registers {

class Favorec final : public CadastroDeNomes {
    Q_OBJECT
public:
    Favorec(nucleo::Sistema &sistema, AbreSaida abreSaida, QWidget *pai);

protected:
    bool EnviaAoDispositivo(int comando) override;

private:
    void Pergunta(const QString &texto, int seletor);
};

} // namespace registers
