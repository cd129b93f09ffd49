// The state machine of the device's side of the line; see Decodificador.h.
#include "qx7032/Decodificador.h"

#include <utility>

namespace qx7032 {

namespace {

using enum Evento::Tipo;

Evento DeTexto(Evento::Tipo tipo, std::string texto)
{
    Evento evento;
    evento.tipo = tipo;
    evento.texto = std::move(texto);
    return evento;
}

// What the bytes of a command so far amount to: still open, a known command or nothing known.
enum class Comando { Aberto, Inversao, Digitos, Desconhecido };

Comando Reconhece(const std::string &bytes)
{
    static const std::string comeco = "\x1b\xaf\x44";
    if (bytes == "\x1bI")
        return Comando::Inversao;
    if (bytes.size() <= comeco.size())
        return comeco.compare(0, bytes.size(), bytes) == 0 ? Comando::Aberto : Comando::Desconhecido;
    const char digito = bytes[comeco.size()];
    if (digito != '1' && digito != '2' && digito != '4')
        return Comando::Desconhecido;
    if (bytes.size() == comeco.size() + 1)
        return Comando::Aberto;
    return bytes.back() == '\r' ? Comando::Digitos : Comando::Desconhecido;
}

} // namespace

std::vector<Evento> Decodificador::Recebe(std::string_view bytes, std::int64_t agora)
{
    std::vector<Evento> eventos = Espera(agora);
    for (char byte : bytes)
        Avanca(byte, eventos);
    if (!bytes.empty())
        m_ultimo = agora;
    return eventos;
}

std::vector<Evento> Decodificador::Espera(std::int64_t agora)
{
    std::vector<Evento> eventos;
    const std::int64_t lacuna = agora - m_ultimo;
    if (m_estado == Estado::Quadro && lacuna > kLacunaMaxima) {
        // The gap itself was silence enough: the next byte may begin something new.
        m_leitor.Recomeca();
        m_estado = Estado::Texto;
        eventos.push_back(DeTexto(QuadroDanificado, {}));
    } else if (m_estado == Estado::Comando && lacuna > kLacunaMaxima) {
        LargaComando(eventos);
    } else if (m_estado == Estado::Silencio && lacuna >= kSilencioExigido) {
        m_estado = Estado::Texto;
    }
    return eventos;
}

std::int64_t Decodificador::Prazo() const
{
    switch (m_estado) {
    case Estado::Quadro:
    case Estado::Comando:
        return m_ultimo + kLacunaMaxima + 1;
    case Estado::Silencio:
        return m_ultimo + kSilencioExigido;
    case Estado::Texto:
        break;
    }
    return -1;
}

std::string Decodificador::TomaTextoPendente()
{
    return std::exchange(m_linha, {});
}

void Decodificador::Avanca(char byte, std::vector<Evento> &eventos)
{
    switch (m_estado) {
    case Estado::Texto:
        Comeca(byte, eventos);
        break;
    case Estado::Quadro:
        AvancaQuadro(byte, eventos);
        break;
    case Estado::Comando:
        AvancaComando(byte, eventos);
        break;
    case Estado::Silencio:
        break; // the rest of a damaged frame
    }
}

void Decodificador::Comeca(char byte, std::vector<Evento> &eventos)
{
    if (byte == kInicio) {
        CortaLinha(eventos);
        m_estado = Estado::Quadro;
        AvancaQuadro(byte, eventos);
    } else if (byte == kEscape) {
        CortaLinha(eventos);
        m_estado = Estado::Comando;
        m_comando.assign(1, byte);
    } else {
        AvancaTexto(byte, eventos);
    }
}

void Decodificador::AvancaQuadro(char byte, std::vector<Evento> &eventos)
{
    switch (m_leitor.Recebe(byte)) {
    case LeitorDeQuadro::Estado::Inteiro: {
        Evento evento;
        evento.quadro = m_leitor.Lido();
        eventos.push_back(std::move(evento));
        m_estado = Estado::Texto;
        break;
    }
    case LeitorDeQuadro::Estado::Danificado:
        eventos.push_back(DeTexto(QuadroDanificado, {}));
        m_estado = Estado::Silencio;
        break;
    case LeitorDeQuadro::Estado::Aguarda:
    case LeitorDeQuadro::Estado::Dentro:
        break;
    }
}

void Decodificador::AvancaComando(char byte, std::vector<Evento> &eventos)
{
    if (byte == kInicio || byte == kEscape) {
        LargaComando(eventos);
        Comeca(byte, eventos);
        return;
    }
    m_comando.push_back(byte);
    switch (Reconhece(m_comando)) {
    case Comando::Aberto:
        return;
    case Comando::Inversao:
        eventos.push_back(DeTexto(Inversao, {}));
        break;
    case Comando::Digitos: {
        Evento evento = DeTexto(DigitosDoAno, {});
        evento.digitos = m_comando[3] - '0';
        eventos.push_back(std::move(evento));
        break;
    }
    case Comando::Desconhecido:
        LargaComando(eventos);
        return;
    }
    m_comando.clear();
    m_estado = Estado::Texto;
}

void Decodificador::LargaComando(std::vector<Evento> &eventos)
{
    eventos.push_back(DeTexto(ComandoDesconhecido, std::exchange(m_comando, {})));
    m_estado = Estado::Texto;
}

void Decodificador::AvancaTexto(char byte, std::vector<Evento> &eventos)
{
    m_linha.push_back(byte);
    if (m_linha.ends_with("\r\n")) {
        m_linha.resize(m_linha.size() - 2);
        eventos.push_back(DeTexto(Linha, std::exchange(m_linha, {})));
    } else if (m_linha.size() >= kLinhaMaxima) {
        CortaLinha(eventos);
    }
}

void Decodificador::CortaLinha(std::vector<Evento> &eventos)
{
    if (!m_linha.empty())
        eventos.push_back(DeTexto(LinhaInacabada, std::exchange(m_linha, {})));
}

} // namespace qx7032
