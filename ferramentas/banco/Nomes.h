// Words that the invented data is made of. No bank here exists; the cities are cities of Brazil.
#pragma once

#include <span>

namespace banco {

struct Lugar {
    const char *nome;
    bool feminino;
};

struct Qualidade {
    const char *masculino;
    const char *feminino;
};

std::span<const char *const> ComecosDeBanco();
std::span<const Lugar> Lugares();
std::span<const Qualidade> Qualidades();
std::span<const char *const> NomesDeCidades(); ///< at most 20 characters each
std::span<const char *const> PrimeirosNomes();
std::span<const char *const> Sobrenomes();
std::span<const char *const> Ramos();       ///< lines of business, before a family name
std::span<const char *const> Comentarios(); ///< what a cheque was written for

} // namespace banco
