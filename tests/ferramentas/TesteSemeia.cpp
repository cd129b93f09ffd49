// qx70-banco semeia: the same data from the same seed, and all of it or nothing.
#include "Apoio.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>

using testing::HasSubstr;

namespace {

QStringList Opcoes(const char *palavras)
{
    return QString::fromUtf8(palavras).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

TEST(Semente, GivesTheSameOfficeTwice)
{
    const Escritorio um;
    const Escritorio outro;
    const QStringList opcoes = Opcoes("--bancos 20 --cheques 500 --semente 7 --hoje 15/03/04");
    ASSERT_EQ(um.Semeia(opcoes).codigo, 0);
    ASSERT_EQ(outro.Semeia(opcoes).codigo, 0);
    EXPECT_EQ(um.Conteudo(), outro.Conteudo());
    EXPECT_EQ(LeArquivo(um.Ini()), LeArquivo(outro.Ini()));
}

TEST(Semente, GivesAnotherOfficeWhenItIsAnother)
{
    const Escritorio um;
    const Escritorio outro;
    ASSERT_EQ(um.Semeia(Opcoes("--bancos 6 --semente 1")).codigo, 0);
    ASSERT_EQ(outro.Semeia(Opcoes("--bancos 6 --semente 2")).codigo, 0);
    for (const char *consulta :
         {"SELECT group_concat(Nome) FROM Favorecido", "SELECT group_concat(Nome) FROM Cidade",
          "SELECT group_concat(Nome) FROM Bancos WHERE Codigo > '003'",
          "SELECT group_concat(C1 || C2 || C3 || C4) FROM Bancos WHERE Codigo > '003'"})
        EXPECT_NE(Valor(um.Loja(), consulta), Valor(outro.Loja(), consulta)) << consulta;
}

TEST(Semente, GivesTheFirstThreeBanksWhateverItIs)
{
    const Escritorio um;
    const Escritorio outro;
    ASSERT_EQ(um.Semeia(Opcoes("--bancos 3 --semente 1")).codigo, 0);
    ASSERT_EQ(outro.Semeia(Opcoes("--bancos 3 --semente 99")).codigo, 0);
    EXPECT_EQ(Linhas(um.Loja(), "SELECT * FROM Bancos"), Linhas(outro.Loja(), "SELECT * FROM Bancos"));
}

TEST(Semente, GivesTheSamePayeesBesideMoreBanks)
{
    const Escritorio um;
    const Escritorio outro;
    ASSERT_EQ(um.Semeia(Opcoes("--bancos 3")).codigo, 0);
    ASSERT_EQ(outro.Semeia(Opcoes("--bancos 30")).codigo, 0);
    EXPECT_EQ(Linhas(um.Loja(), "SELECT * FROM Favorecido"),
              Linhas(outro.Loja(), "SELECT * FROM Favorecido"));
}

TEST(Semeia, FillsAFewRegistersAndNoChequeWhenNothingIsAsked)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia({}).codigo, 0);
    EXPECT_EQ(Valor(escritorio.Loja(), "SELECT count(*) FROM Bancos"), "5");
    EXPECT_EQ(Valor(escritorio.Loja(), "SELECT count(*) FROM Cidade"), "12");
    EXPECT_EQ(Valor(escritorio.Loja(), "SELECT count(*) FROM Favorecido"), "12");
    EXPECT_EQ(Valor(escritorio.Loja(), "SELECT count(*) FROM Log"), "0");
}

TEST(Semeia, AddsChequesToAnOfficeThatHasItsRegisters)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia(Opcoes("--bancos 2 --cidades 1 --favorecidos 1")).codigo, 0);
    const QByteArray ini = LeArquivo(escritorio.Ini());
    const Execucao semeia = escritorio.Semeia(Opcoes("--bancos 0 --cidades 0 --favorecidos 0 --cheques 50"));
    ASSERT_EQ(semeia.codigo, 0) << semeia.erros.toStdString();
    EXPECT_EQ(Valor(escritorio.Loja(), "SELECT count(*) FROM Log WHERE Banco IN ('001','002') AND "
                                       "Local=(SELECT Nome FROM Cidade)"),
              "50");
    EXPECT_EQ(LeArquivo(escritorio.Ini()), ini);
}

TEST(Semeia, WritesChequesWithoutAnyRegister)
{
    const Escritorio escritorio;
    ASSERT_EQ(escritorio.Semeia(Opcoes("--bancos 0 --cidades 0 --favorecidos 0 --cheques 3")).codigo, 0);
    EXPECT_EQ(
        Valor(escritorio.Loja(), "SELECT count(*) FROM Log WHERE Banco='001' AND Local<>'' AND Favor<>''"),
        "3");
    EXPECT_EQ(NomesEm(escritorio.Caminho()), QStringList{QStringLiteral("QX70.MDB")});
}

TEST(Semeia, KeepsTheOtherSettings)
{
    const Escritorio escritorio;
    const QByteArray antes = "; da casa\r\n[Sistema]\r\nport=COM2\r\n\r\n[Outra]\r\nx = 1\r\n";
    EscreveArquivo(escritorio.Ini(), antes);
    ASSERT_EQ(escritorio.Semeia(Opcoes("--bancos 1")).codigo, 0);
    EXPECT_EQ(LeArquivo(escritorio.Ini()).toStdString(),
              antes.toStdString() +
                  "[Formato]\r\n001=01,05,07,10,13,92,17,09,11,50,31,40,65    ; Banco Serra Azul\r\n");
}

TEST(Semeia, FindsStoreAndSettingsInOtherLetters)
{
    const Escritorio escritorio;
    ASSERT_TRUE(QFile::rename(escritorio.Loja(), escritorio.Caminho(QStringLiteral("qx70.mdb"))));
    EscreveArquivo(escritorio.Caminho(QStringLiteral("QX70.ini")), "[Sistema]\r\n");
    ASSERT_EQ(escritorio.Semeia(Opcoes("--bancos 1")).codigo, 0);
    EXPECT_EQ(NomesEm(escritorio.Caminho()),
              (QStringList{QStringLiteral("QX70.ini"), QStringLiteral("qx70.mdb")}));
    EXPECT_THAT(LeArquivo(escritorio.Caminho(QStringLiteral("QX70.ini"))).toStdString(),
                HasSubstr("[Formato]"));
}

struct CasoCheia {
    std::string nome;
    const char *tabela;
    const char *linha;
};
void PrintTo(const CasoCheia &c, std::ostream *os)
{
    *os << c.nome;
}

class CheiaTest : public testing::TestWithParam<CasoCheia> {};

TEST_P(CheiaTest, RefusesTheWholeAndNamesTheTable)
{
    const Escritorio escritorio;
    SQLite::Database(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE).exec(GetParam().linha);
    const std::string antes = escritorio.Conteudo();
    const Execucao semeia = escritorio.Semeia(Opcoes("--cheques 5"));
    EXPECT_EQ(semeia.codigo, 1);
    EXPECT_THAT(semeia.erros.toStdString(), HasSubstr("A tabela " + std::string(GetParam().tabela) + " de"));
    EXPECT_EQ(escritorio.Conteudo(), antes);
    EXPECT_EQ(NomesEm(escritorio.Caminho()), QStringList{QStringLiteral("QX70.MDB")});
}

INSTANTIATE_TEST_SUITE_P(
    Tabelas, CheiaTest,
    testing::Values(CasoCheia{"BankThere", "Bancos", "INSERT INTO Bancos(Codigo) VALUES ('007')"},
                    CasoCheia{"CityThere", "Cidade", "INSERT INTO Cidade VALUES ('00001', 'Natal')"},
                    CasoCheia{"PayeeThere", "Favorecido", "INSERT INTO Favorecido VALUES ('00001', 'Ana')"},
                    CasoCheia{"ChequeThere", "Log", "INSERT INTO Log(\"Index\") VALUES ('0000000001')"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Semeia, StoresNothingWhenTheSettingsCannotBeWritten)
{
    const Escritorio escritorio;
    ASSERT_TRUE(QDir(escritorio.Caminho()).mkdir(QStringLiteral("QX70.INI")));
    const std::string antes = escritorio.Conteudo();
    const Execucao semeia = escritorio.Semeia(Opcoes("--cheques 5"));
    EXPECT_EQ(semeia.codigo, 1);
    EXPECT_THAT(semeia.erros.toStdString(), HasSubstr("QX70.INI não pode ser gravado"));
    EXPECT_EQ(escritorio.Conteudo(), antes);
}

TEST(Semeia, ChangesNoSettingWhenTheStoreRefuses)
{
    const Escritorio escritorio;
    SQLite::Database(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE).exec("DROP TABLE Log");
    EscreveArquivo(escritorio.Ini(), "[Sistema]\r\nport=COM2\r\n");
    const Execucao semeia = escritorio.Semeia(Opcoes("--cheques 5"));
    EXPECT_EQ(semeia.codigo, 1);
    EXPECT_THAT(semeia.erros.toStdString(),
                HasSubstr("não tem as tabelas e os campos esperados (no such table: Log)"));
    EXPECT_EQ(LeArquivo(escritorio.Ini()), "[Sistema]\r\nport=COM2\r\n");
    EXPECT_EQ(Valor(escritorio.Loja(), "SELECT count(*) FROM Bancos"), "0");
}

TEST(Semeia, ChangesNoSettingWhenTheStoreFailsHalfWay)
{
    const Escritorio escritorio;
    SQLite::Database(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE)
        .exec("ALTER TABLE Log DROP COLUMN Comentario2");
    const std::string antes = escritorio.Conteudo();
    const Execucao semeia = escritorio.Semeia(Opcoes("--cheques 5"));
    EXPECT_EQ(semeia.codigo, 1);
    EXPECT_THAT(semeia.erros.toStdString(), HasSubstr("Comentario2"));
    EXPECT_EQ(escritorio.Conteudo(), antes);
    EXPECT_EQ(NomesEm(escritorio.Caminho()), QStringList{QStringLiteral("QX70.MDB")});
}

TEST(Semeia, TellsOfAStoreInUse)
{
    const Escritorio escritorio;
    SQLite::Database outro(escritorio.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("BEGIN IMMEDIATE");
    const Execucao semeia = escritorio.Semeia({});
    EXPECT_EQ(semeia.codigo, 1);
    EXPECT_THAT(semeia.erros.toStdString(), HasSubstr("em uso por outro programa"));
    EXPECT_EQ(NomesEm(escritorio.Caminho()).filter(QStringLiteral("INI")), QStringList{});
}

TEST(Semeia, TellsOfAMissingStoreAndMakesNone)
{
    const QTemporaryDir pasta;
    const Execucao semeia = Banco({QStringLiteral("semeia"), pasta.path()});
    EXPECT_EQ(semeia.codigo, 1);
    EXPECT_THAT(semeia.erros.toStdString(), HasSubstr("Não existe o banco de dados"));
    EXPECT_TRUE(NomesEm(pasta.path()).isEmpty());
}

TEST(Semeia, TellsOfAMissingFolder)
{
    const QTemporaryDir pasta;
    const Execucao semeia = Banco({QStringLiteral("semeia"), pasta.filePath(QStringLiteral("falta"))});
    EXPECT_EQ(semeia.codigo, 1);
    EXPECT_THAT(semeia.erros.toStdString(), HasSubstr("/falta não existe"));
}

TEST(Semeia, TellsOfAFileThatIsNoStoreAndLeavesIt)
{
    const QTemporaryDir pasta;
    const QString loja = pasta.filePath(QStringLiteral("QX70.MDB"));
    const QByteArray lixo = QByteArray("nada disto ").repeated(500);
    EscreveArquivo(loja, lixo);
    const Execucao semeia = Banco({QStringLiteral("semeia"), pasta.path()});
    EXPECT_EQ(semeia.codigo, 1);
    EXPECT_THAT(semeia.erros.toStdString(), HasSubstr("não é um banco de dados"));
    EXPECT_EQ(LeArquivo(loja), lixo);
    EXPECT_EQ(NomesEm(pasta.path()).size(), 1);
}

TEST(Progresso, IsShownAtEveryTenthOfLongWork)
{
    const Escritorio escritorio;
    const Execucao semeia = escritorio.Semeia(Opcoes("--cheques 100000"));
    EXPECT_EQ(semeia.codigo, 0);
    QStringList esperado;
    for (int i = 10; i <= 100; i += 10)
        esperado.append(QStringLiteral("Cheques: %1 %").arg(i));
    EXPECT_EQ(semeia.erros.trimmed().split(QLatin1Char('\n')), esperado);
}

} // namespace
