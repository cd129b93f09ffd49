// Comparison of texts in Portuguese dictionary order, without regard to case, and reading of stored bytes.
#pragma once

#include <optional>
#include <QString>
#include <string_view>

namespace plataforma::jet {

/// Less than, equal to or greater than 0. Base letters decide first, then the end of the text, and only then
/// the accents: a < á < b, and "ágil" stands before "agua". Upper and lower case are the same letter, an
/// accent makes another one. The bytes are UTF-8; a byte that is not counts as the Windows-1252 character of
/// its number, as in TextoGravado.
int ComparaPortugues(std::string_view a, std::string_view b);

/// The text of stored bytes: UTF-8, or Windows-1252 where they are not UTF-8 as a whole (files of other
/// programs). Never null.
QString TextoGravado(std::string_view bytes);

/// The bytes of the first `n` characters, counted as in the text of TextoGravado; none where they are no
/// stretch of UTF-8, so that the text must be made to know.
std::optional<std::string_view> InicioGravado(std::string_view bytes, std::size_t n);

} // namespace plataforma::jet
