// The topics of the help, in the order of its index.
#pragma once

#include <QList>
#include <QString>

namespace app {

struct Topico {
    QString palavra; ///< topic word; also the name of the page's file
    QString titulo;  ///< what the index shows
};

[[nodiscard]] const QList<Topico> &Topicos();

/// The place of a topic word in Topicos(), without regard to case; the page of contents (0) for an unknown
/// one.
[[nodiscard]] int IndiceDoTopico(const QString &palavra);

} // namespace app
