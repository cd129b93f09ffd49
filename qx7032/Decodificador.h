// The device's ear: takes the bytes of the line apart into frames, commands and lines of text. It has no
// clock; who feeds it tells the time.
#pragma once

#include "qx7032/Quadro.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qx7032 {

inline constexpr std::int64_t kLacunaMaxima = 500;    ///< ms without a byte that break a frame or a command
inline constexpr std::int64_t kSilencioExigido = 100; ///< ms without a byte that end a damaged frame
inline constexpr std::size_t kLinhaMaxima =
    4096; ///< bytes after which a line of text is delivered unfinished

/// One thing heard on the line.
struct Evento {
    enum class Tipo {
        Quadro,              ///< a whole frame; answer kRecebido, then the result
        QuadroDanificado,    ///< answer kNaoRecebido; nothing is to be done
        Linha,               ///< a line of text, in `texto`, without its CR LF
        LinhaInacabada,      ///< text that a frame, a command or its own length cut short, in `texto`
        DigitosDoAno,        ///< command ESC AF D n CR; 1, 2 or 4 in `digitos`
        Inversao,            ///< command ESC I: inverted printing on or off
        ComandoDesconhecido, ///< ESC and something else, in `texto`
    };
    Tipo tipo = Tipo::Quadro;
    Quadro quadro{};
    std::string texto{};
    int digitos = 0;
    bool operator==(const Evento &) const = default;
};

/// Every sequence of bytes is taken; memory stays bounded by the longest frame and kLinhaMaxima.
class Decodificador {
public:
    /// Takes bytes that arrived at `agora` (ms of any steady clock) and adds what they complete to the
    /// result.
    [[nodiscard]] std::vector<Evento> Recebe(std::string_view bytes, std::int64_t agora);
    /// Tells that it is `agora` and no byte came: a frame or command left open for over kLacunaMaxima is
    /// given up.
    [[nodiscard]] std::vector<Evento> Espera(std::int64_t agora);
    /// When Espera has to be called at the latest, in ms of the same clock; -1 when nothing is open.
    [[nodiscard]] std::int64_t Prazo() const;
    /// Text received so far of a line that has not ended, which is taken away.
    [[nodiscard]] std::string TomaTextoPendente();

private:
    enum class Estado { Texto, Quadro, Comando, Silencio };

    void Avanca(char byte, std::vector<Evento> &eventos);
    void Comeca(char byte, std::vector<Evento> &eventos);
    void AvancaQuadro(char byte, std::vector<Evento> &eventos);
    void AvancaComando(char byte, std::vector<Evento> &eventos);
    void AvancaTexto(char byte, std::vector<Evento> &eventos);
    void CortaLinha(std::vector<Evento> &eventos);
    void LargaComando(std::vector<Evento> &eventos);

    Estado m_estado = Estado::Texto;
    LeitorDeQuadro m_leitor;
    std::string m_comando;
    std::string m_linha;
    std::int64_t m_ultimo = 0; // when the last byte came
};

} // namespace qx7032
