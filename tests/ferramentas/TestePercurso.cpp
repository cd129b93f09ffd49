// Reading tables moment by moment: nobody is kept waiting, and a change in between is told.
#include "Apoio.h"
#include "Esquema.h"
#include "Percurso.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace banco;
using testing::ElementsAre;

namespace {

SQLite::Database Abre(const Escritorio &escritorio)
{
    return {escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE};
}

void Inclui(const Escritorio &escritorio, const std::string &linhas)
{
    Abre(escritorio).exec("INSERT INTO Cidade VALUES " + linhas);
}

std::vector<std::string> Codigos(Percurso &percurso, int quantos)
{
    std::vector<std::string> codigos;
    while (quantos-- > 0 && percurso.Proxima())
        codigos.emplace_back(percurso.Campo(0).value_or("<nada>"));
    return codigos;
}

TEST(Momento, HoldsWritersOffUntilItsEnd)
{
    const Escritorio escritorio;
    SQLite::Database loja = Abre(escritorio);
    Momentos momentos(loja);
    ASSERT_TRUE(momentos.Comeca());
    EXPECT_THROW(Inclui(escritorio, "('00001', 'Natal')"), SQLite::Exception);
    momentos.Termina();
    EXPECT_NO_THROW(Inclui(escritorio, "('00001', 'Natal')"));
}

TEST(Momento, TellsWhetherAnotherWroteSinceTheFirst)
{
    const Escritorio escritorio;
    SQLite::Database loja = Abre(escritorio);
    Momentos momentos(loja);
    ASSERT_TRUE(momentos.Comeca());
    momentos.Termina();
    EXPECT_TRUE(momentos.Comeca());
    momentos.Termina();
    Inclui(escritorio, "('00001', 'Natal')");
    EXPECT_FALSE(momentos.Comeca());
    momentos.Termina();
    EXPECT_FALSE(momentos.Comeca());
}

TEST(Momento, IsOverWithinTheTimeThatTheProgramWaits)
{
    const Escritorio escritorio;
    SQLite::Database loja = Abre(escritorio);
    Momentos momentos(loja);
    ASSERT_TRUE(momentos.Comeca());
    EXPECT_FALSE(momentos.Venceu());
    const auto inicio = std::chrono::steady_clock::now();
    while (!momentos.Venceu())
        ASSERT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::milliseconds(250));
}

TEST(Percurso, GoesOnBehindTheRowWhereItWasLeft)
{
    const Escritorio escritorio;
    Inclui(escritorio, "('00003', 'c'), ('00001', 'a'), ('00005', 'e'), ('00002', 'b')");
    SQLite::Database loja = Abre(escritorio);
    Percurso percurso(loja, TabelaDe("Cidade"));
    ASSERT_TRUE(percurso.PodeSoltar());
    EXPECT_THAT(Codigos(percurso, 1), ElementsAre("00003"));
    percurso.Solta();
    EXPECT_THAT(Codigos(percurso, 2), ElementsAre("00001", "00005"));
    percurso.Solta();
    EXPECT_THAT(Codigos(percurso, 9), ElementsAre("00002"));
    EXPECT_EQ(percurso.Lidas(), 4);
}

TEST(Percurso, WalksRowsOfNegativeAndOfTheLastNumber)
{
    const Escritorio escritorio;
    Abre(escritorio)
        .exec("INSERT INTO Cidade(rowid, Codigo) VALUES (-5, 'm'), (0, 'z'), "
              "(9223372036854775807, 'u')");
    SQLite::Database loja = Abre(escritorio);
    Percurso percurso(loja, TabelaDe("Cidade"));
    std::vector<std::string> todos;
    for (std::vector<std::string> um; !(um = Codigos(percurso, 1)).empty(); percurso.Solta())
        todos.push_back(um.front());
    EXPECT_THAT(todos, ElementsAre("m", "z", "u"));
}

TEST(Percurso, TellsNoValueFromAnEmptyText)
{
    const Escritorio escritorio;
    Inclui(escritorio, "('00001', NULL), ('00002', '')");
    SQLite::Database loja = Abre(escritorio);
    Percurso percurso(loja, TabelaDe("Cidade"));
    ASSERT_TRUE(percurso.Proxima());
    EXPECT_EQ(percurso.Campo(1), std::nullopt);
    ASSERT_TRUE(percurso.Proxima());
    EXPECT_EQ(percurso.Campo(1), std::string_view());
}

TEST(Percurso, DoesNotTakeTheNameOfAMissingFieldForAText)
{
    const Escritorio escritorio;
    Inclui(escritorio, "('00001', 'Natal')");
    SQLite::Database loja = Abre(escritorio);
    loja.exec("ALTER TABLE Cidade DROP COLUMN Nome");
    EXPECT_THROW(Percurso(loja, TabelaDe("Cidade")), SQLite::Exception);
}

TEST(Percurso, WalksATableWithoutRowNumbersInOneGo)
{
    const Escritorio escritorio;
    SQLite::Database loja = Abre(escritorio);
    loja.exec("DROP TABLE Cidade; CREATE TABLE cidade(CODIGO TEXT PRIMARY KEY, Nome TEXT) WITHOUT ROWID;"
              "CREATE INDEX porNome ON cidade(Nome);"
              "INSERT INTO Cidade VALUES ('00002', 'a'), ('00001', 'b')");
    Percurso percurso(loja, TabelaDe("Cidade"));
    EXPECT_FALSE(percurso.PodeSoltar());
    EXPECT_THAT(Codigos(percurso, 9), ElementsAre("00001", "00002"));
}

} // namespace
