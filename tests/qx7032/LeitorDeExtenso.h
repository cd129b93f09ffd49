// Reads an amount written in Portuguese words back to cents, checking the grammar on the way. Written apart
// from the writer, with its own words and rules, so that the one can judge the other.
#pragma once

#include <cstdint>
#include <string>

struct ExtensoLido {
    std::int64_t centavos = -1;
    std::string erro; ///< why the words are no good Portuguese; empty when they are
    bool operator==(const ExtensoLido &) const = default;
};

/// @param frase words in UTF-8, without a closing character
/// @param singular,plural names of the currency, of one word each
ExtensoLido LeExtenso(const std::string &frase, const std::string &singular = "real",
                      const std::string &plural = "reais");
