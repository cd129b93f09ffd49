// The printing system of the machine (CUPS): whether it answers, and whether it took a document.
#pragma once

#include <QString>

namespace plataforma {

inline constexpr int kEsperaDoServidorMs = 4000;

/// Whether the printing system answers a question. The toolkit asks without a limit: of a server that is
/// switched off it would wait for minutes. Blocks for about twice `esperaMs` milliseconds at most (to reach
/// it, and for its answer).
[[nodiscard]] bool PrintServerAnswers(int esperaMs = kEsperaDoServidorMs);

/// Why the printing system refused the document that this thread handed over last, in its own words; empty
/// when it was taken. The toolkit does not tell.
[[nodiscard]] QString RefusalOfLastJob();

} // namespace plataforma
