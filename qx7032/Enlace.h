// The host's side of the line: opens the port, sends orders and waits for their results.
#pragma once

#include "qx7032/Argumentos.h"
#include "qx7032/Configuracao.h"
#include "qx7032/Linha.h"
#include "qx7032/resultados.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qx7032 {

/// Cuts a long text into pieces of at most `limite` bytes, behind a line feed where there is one; always at
/// least one piece.
[[nodiscard]] std::vector<std::string_view> ParteTexto(std::string_view texto, std::size_t limite);

class Enlace {
public:
    /// Opens a port by name, closing the one that is open. @return QX7032_SUCESSO or the cause (2 to 6)
    int Abre(const std::string &porta);
    /// Closes when everything written has left. @return QX7032_SUCESSO, or the first failure since Abre
    int Fecha();
    /// Sends one order and waits for its end; nothing is ever sent twice.
    int Ordena(char tipo, const EscritorDeArgumentos &argumentos);
    /// Sends bytes as they stand and waits until they have left.
    int EnviaBruto(std::string_view bytes);

private:
    using Relogio = Linha::Relogio;

    int Cumpre(char tipo, const std::string &carga);
    int Escreve(std::string_view bytes);
    int AguardaResultado(std::uint8_t sequencia, std::chrono::milliseconds espera);
    int Anota(int resultado);

    Linha m_linha;
    Configuracao m_configuracao;
    int m_causa = QX7032_PORTA_FECHADA; // what operations answer while the port is closed
    int m_primeiraFalha = QX7032_SUCESSO;
    std::uint8_t m_sequencia = 0;
    Relogio::time_point m_silencioAte{};
};

} // namespace qx7032
