// See Cidade.h.
#include "registers/Cidade.h"

#include "nucleo/Consultas.h"

namespace registers {

Cidade::Cidade(nucleo::Sistema &sistema, AbreSaida abreSaida, QWidget *pai)
    : CadastroDeNomes(sistema,
                      {QStringLiteral("Cidade"), QStringLiteral("Cadastro de Cidades"), nucleo::SelCidade,
                       QStringLiteral("Cidade:"), 20, 20, QStringLiteral("Imprime"),
                       QStringLiteral("Imprimir "), QStringLiteral("Cidade"),
                       QStringLiteral(" Cidades Cadastradas"), QStringLiteral("Selecione uma Cidade...")},
                      std::move(abreSaida), pai)
{
}

} // namespace registers
