// What a second copy of the program says to the running one: fields to fill, and "come to the front".
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <utility>

namespace plataforma {

/// Texts for numbered fields, in the order in which they are to be set.
using Campos = QList<std::pair<int, QString>>;

inline constexpr int kMaxCampos = 16;       ///< fields in one message
inline constexpr int kMaxTextoCampo = 4096; ///< UTF-16 units of one text; far above the limit of any field
inline constexpr int kMaxIndiceCampo = 255; ///< greatest field number
inline constexpr int kMaxCorpo = 1 + kMaxCampos * (3 + 3 * kMaxTextoCampo); ///< bytes behind the head
inline constexpr int kTamanhoCabeca = 9; ///< bytes: "QX7H", version, body length (32 bits, high byte first)

/// The bytes of a message. A text beyond kMaxTextoCampo is cut there, so that the field that takes it still
/// meets its own length rule. Empty when there are more than kMaxCampos fields or a number out of range.
[[nodiscard]] QByteArray MontaMensagem(const Campos &campos);

enum class EstadoMensagem {
    Incompleta, ///< right so far, more bytes are to come
    Completa,
    Invalida, ///< no message of ours, whatever follows
};

struct Leitura {
    EstadoMensagem estado = EstadoMensagem::Incompleta;
    Campos campos; ///< filled only when Completa
};

/// Reads what has arrived so far, from its first byte. Any bytes whatever are allowed; bytes behind the end
/// of the message, text that is not UTF-8 or that holds a NUL, and other versions make it Invalida.
[[nodiscard]] Leitura LeMensagem(const QByteArray &recebido);

} // namespace plataforma
