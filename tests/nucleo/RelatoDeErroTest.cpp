// The report of a document that failed: what it says by the number, and that nothing else is caught.
#include "nucleo/RelatoDeErro.h"
#include "plataforma/basico/RuntimeError.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

class Anota final : public nucleo::Mensagens {
public:
    nucleo::Resposta MsgBox(const QString &texto, nucleo::Botoes botoes, nucleo::Icone icone,
                            const QString &titulo) override
    {
        EXPECT_EQ(botoes, nucleo::Botoes::Ok);
        EXPECT_EQ(icone, nucleo::Icone::Exclamacao);
        EXPECT_EQ(titulo.toStdString(), "QX70 MIRA - Document Printer");
        textos.push_back(texto.toStdString());
        return nucleo::Resposta::Ok;
    }
    std::vector<std::string> textos;
};

struct Caso {
    std::string nome;
    int numero;
    std::vector<std::string> textos;
};
void PrintTo(const Caso &caso, std::ostream *os)
{
    *os << caso.numero;
}
class RelatoDeErroTest : public testing::TestWithParam<Caso> {};

TEST_P(RelatoDeErroTest, SaysItByTheNumber)
{
    Anota mensagens;
    nucleo::RelataErro(GetParam().numero, mensagens);
    EXPECT_EQ(mensagens.textos, GetParam().textos);
}

TEST_P(RelatoDeErroTest, EndsADocumentThatFails)
{
    Anota mensagens;
    bool seguiu = false;
    nucleo::EnviaComRelato(
        [&] {
            if (GetParam().numero != 0)
                throw plataforma::RuntimeError(GetParam().numero, "O que falhou.");
            seguiu = true;
        },
        mensagens);
    EXPECT_EQ(mensagens.textos, GetParam().textos);
    EXPECT_EQ(seguiu, GetParam().numero == 0);
}

INSTANTIATE_TEST_SUITE_P(Numeros, RelatoDeErroTest,
                         testing::Values(Caso{"None", 0, {}}, Caso{"DialogueCancelled", 32755, {}},
                                         Caso{"Printer",
                                              482,
                                              {"Ocorreu erro 482! Possiveis Causas:\n"
                                               "- A impressora não foi encontrada!\n"
                                               "- A impressora está desligada!\n"
                                               "- Fim de papel ou papel enroscado!"}},
                                         Caso{"DivisionByZero", 11, {"Ocorreu erro 11!"}},
                                         Caso{"DiskFull", 61, {"Ocorreu erro 61!"}},
                                         Caso{"StoreMissing", 3024, {"Ocorreu erro 3024!"}}),
                         [](const auto &caso) { return caso.param.nome; });

TEST(EnviaComRelato, LetsOtherFailuresThrough)
{
    Anota mensagens;
    EXPECT_THROW(nucleo::EnviaComRelato([] { throw std::logic_error("x"); }, mensagens), std::logic_error);
    EXPECT_TRUE(mensagens.textos.empty());
}

} // namespace
