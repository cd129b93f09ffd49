// One running copy per application folder: a lock, and a local socket over which a second start hands its
// fields to the copy that runs.
#pragma once

#include "plataforma/ambiente/Mensagem.h"
#include <functional>
#include <memory>
#include <QString>
#include <QStringList>

namespace plataforma {

class PortaDeEntrega;

/// Where a folder of the user's own is sought.
struct LugaresDeTrava {
    QStringList doUsuario; ///< folders that belong to the user already, in order; others are passed over
    QString temporaria;    ///< a folder shared by all users, as the last resort
};

/// XDG_RUNTIME_DIR, then /run/user/<uid>, so that a start without the desktop's variables finds the same
/// place; then /tmp.
[[nodiscard]] LugaresDeTrava LugaresDoSistema();

/// Where lock and socket of an installation lie: a folder of mode 0700 that belongs to this user, made when
/// missing. A folder that belongs to another or is open to others is passed over. Empty when there is none.
[[nodiscard]] QString PastaDaInstalacao(const QString &caminhoApp,
                                        const LugaresDeTrava &lugares = LugaresDoSistema());

/// The name of the socket inside that folder.
inline constexpr char kNomeSocket[] = "porta";

/// The lock and the socket lie in a folder of the user's own, under a name made from the application folder:
/// two folders are two installations. The kernel drops the lock when the process ends, however it ends. Needs
/// no event loop but in the copy that called Atende().
class CopiaUnica {
public:
    /// Called in the running copy for each hand-over; `campos` is empty when it is only to come to the front.
    /// Must not throw.
    using Recebe = std::function<void(const Campos &campos)>;

    /// Takes the lock if it is free, and then opens the socket at once, so that a copy started a moment later
    /// waits for Atende() instead of failing. Never throws.
    explicit CopiaUnica(const QString &caminhoApp, const LugaresDeTrava &lugares = LugaresDoSistema());
    /// Gives lock and socket back. May run inside the callback of Atende().
    ~CopiaUnica();
    CopiaUnica(const CopiaUnica &) = delete;
    CopiaUnica &operator=(const CopiaUnica &) = delete;

    /// Whether no other copy runs on this application folder. Also true when the user has no folder in which
    /// to keep a lock: the program then starts without this protection.
    [[nodiscard]] bool Primeira() const;

    /// Asks for the lock once more, for a start that found a copy which has ended since. @return Primeira()
    bool TentaDeNovo();

    /// In the first copy: begins to take hand-overs, in the event loop. One is taken at a time: while
    /// `recebe` runs, perhaps behind a message box, the others wait. One whose sender has given up is thrown
    /// away.
    void Atende(Recebe recebe);

    /// In a second copy: hands the fields over and asks the running copy to come to the front. Blocks for
    /// `esperaMs` milliseconds at most. @return whether the running copy took them; false when it hangs, has
    /// ended, or belongs to another user
    [[nodiscard]] bool Entrega(const Campos &campos, int esperaMs = 3000) const;

private:
    QString m_pasta;
    int m_trava = -1; ///< the open folder that carries the lock; -1 when it is not ours
    bool m_primeira = true;
    std::unique_ptr<PortaDeEntrega> m_porta;
};

} // namespace plataforma
