// Rules of the device's configuration: what its boxes may hold and send, the currency's names in the
// settings, and the self-test page.
#pragma once

#include <array>
#include <optional>
#include <QString>

namespace nucleo {
class QX_INI;
class Sistema;
} // namespace nucleo

namespace device {

inline constexpr int kTamanhoDoCodigo = 2; ///< characters of a payee's code
inline constexpr int kTamanhoDoNome = 48;  ///< characters of a payee's name
inline constexpr int kPortas = 4;
inline const QString kTodosOsFavorecidos = QStringLiteral("*"); ///< a code that means all of them

/// What leaving a code's box makes of its text: a number in two digits or more, anything else empty.
QString CodigoAoSair(const QString &texto);

/// The texts of the screen.
struct TextosDaConfiguracao {
    std::array<QString, 2> moeda;      ///< Text1: singular, plural
    std::array<QString, 2> favorecido; ///< Text2: code, name
    QString exclusao;                  ///< Text3: code, or "*"
};

/// A refusal: what to say, and the index of the box that takes the focus.
struct Recusa {
    QString texto;
    QString titulo;
    int campo = 0;
};
/// The checks before anything is sent; nothing when they pass. `todos` is whether the option for all payees
/// is on.
std::optional<Recusa> VerificaMoeda(const TextosDaConfiguracao &textos);
std::optional<Recusa> VerificaInclusao(const TextosDaConfiguracao &textos);
std::optional<Recusa> VerificaExclusao(const TextosDaConfiguracao &textos, bool todos);

/// The boxes of the currency as the screen opens, from the settings; names that are missing there are
/// written.
std::array<QString, 2> CarregaMoeda(const nucleo::QX_INI &ini);

/// Index of the option of a port name, and the name of an option; any other name has the last option.
int OpcaoDaPorta(const QString &porta);
QString PortaDaOpcao(int opcao);
/// Makes it the port in the settings. The one in memory stays.
void GravaPorta(const nucleo::QX_INI &ini, const QString &porta);

enum class Envio : int { Inclusao = 1, Exclusao = 2, Moeda = 3 };
/// One operation on what the device holds, between opening and closing the port; the operator is told how it
/// ended. A port that does not open is told, and the operation is called all the same. The currency's names
/// go into the settings first, whatever the device answers.
void EnviaConfiguracao(Envio envio, const TextosDaConfiguracao &textos, nucleo::Sistema &sistema);

/// The self-test page, which names the port; lines of at most 80 columns, each ended by LF alone.
QString TextoDoAutoTeste(const QString &porta);

} // namespace device
