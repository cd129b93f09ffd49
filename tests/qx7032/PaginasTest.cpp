// The code pages: 850 of the device and Windows-1252 of the files.
#include "qx7032/Pagina850.h"
#include "qx7032/Utf8.h"
#include "qx7032/Windows1252.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

using namespace qx7032;

namespace {

// Columns: "char" codepoint cp1252_byte device_byte.
TEST(Pagina850, AgreesWithTheTableOfOtherSoftware)
{
    std::ifstream arquivo(QX70_TEST_DATA "/cp850.tsv");
    std::string linha;
    std::getline(arquivo, linha);
    int linhas = 0;
    for (; std::getline(arquivo, linha); ++linhas) {
        std::istringstream colunas(linha);
        std::string caractere, codigo, windows, dispositivo;
        colunas >> caractere >> codigo >> windows >> dispositivo;
        const std::string utf8 = caractere.substr(1, caractere.size() - 2);
        const std::string byte850(1, static_cast<char>(std::strtol(dispositivo.c_str(), nullptr, 16)));
        const std::string byte1252(1, static_cast<char>(std::strtol(windows.c_str(), nullptr, 16)));
        EXPECT_EQ(Utf8De850(byte850), utf8) << linha;
        EXPECT_EQ(Texto850De(utf8), byte850) << linha;
        EXPECT_EQ(Utf8De1252(byte1252), utf8) << linha;
        EXPECT_EQ(Texto1252De(utf8), byte1252) << linha;
    }
    EXPECT_EQ(linhas, 31);
}

TEST(Pagina850, EveryByteComesBackFromItsCharacter)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string um(1, static_cast<char>(byte));
        EXPECT_EQ(Texto850De(Utf8De850(um)), um) << byte;
    }
}

TEST(Pagina850, KnowsFramesAndSignsOfTheUpperHalf)
{
    EXPECT_EQ(Utf8De850("\xC4\xCD\xDB\xFE\xFF"), "─═█■\u00A0");
    EXPECT_EQ(Utf8De850("\xD5\x9F\xF2\x9D"), "ıƒ‗Ø");
}

TEST(Pagina850, WhatItLacksBecomesAQuestionMark)
{
    EXPECT_FALSE(Byte850De(U'€').has_value());
    EXPECT_EQ(Texto850De("a€b"), "a?b");
    EXPECT_EQ(Texto850De("a\xFF\xC3"), "a??");
}

TEST(Windows1252, EveryByteComesBackFromItsCharacter)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string um(1, static_cast<char>(byte));
        EXPECT_EQ(Texto1252De(Utf8De1252(um)), um) << byte;
    }
}

TEST(Windows1252, HasTheSignsBetween80And9F)
{
    EXPECT_EQ(Utf8De1252("\x80\x93\x9F"), "€“Ÿ");
    EXPECT_EQ(Texto1252De("ž…"), "\x9E\x85");
    EXPECT_EQ(Texto1252De("a─b"), "a?b");
}

struct CasoUtf8 {
    std::string nome;
    std::string bytes;
    char32_t primeiro;
    std::size_t restam;
};
void PrintTo(const CasoUtf8 &c, std::ostream *os)
{
    *os << c.nome;
}
class TomaUtf8Test : public testing::TestWithParam<CasoUtf8> {};

TEST_P(TomaUtf8Test, TakesOneCharacter)
{
    std::string_view texto = GetParam().bytes;
    EXPECT_EQ(TomaUtf8(texto), GetParam().primeiro);
    EXPECT_EQ(texto.size(), GetParam().restam);
}

INSTANTIATE_TEST_SUITE_P(
    Textos, TomaUtf8Test,
    testing::Values(CasoUtf8{"Ascii", "ab", U'a', 1}, CasoUtf8{"TwoBytes", "ãb", U'ã', 1},
                    CasoUtf8{"ThreeBytes", "€b", U'€', 1}, CasoUtf8{"FourBytes", "😀b", U'😀', 1},
                    CasoUtf8{"CutShort", "\xE2\x82", 0xFFFD, 1}, CasoUtf8{"OverLong", "\xC0\x80", 0xFFFD, 1},
                    CasoUtf8{"OverLongOfThree", "\xE0\x80\x80", 0xFFFD, 2},
                    CasoUtf8{"Surrogate", "\xED\xA0\x80", 0xFFFD, 2},
                    CasoUtf8{"ContinuationAlone", "\x80x", 0xFFFD, 1}),
    [](const auto &caso) { return caso.param.nome; });

} // namespace
