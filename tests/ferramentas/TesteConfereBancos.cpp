// qx70-banco confere: the banks' layouts in the store against those in the settings.
#include "ApoioConfere.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

struct CasoIni {
    std::string nome;
    QByteArray de, para; ///< replaced in the settings of Pequeno
    const char *comandos;
    std::vector<std::string> dito;
};
void PrintTo(const CasoIni &c, std::ostream *os)
{
    *os << c.nome;
}

class FormatoConferidoTest : public testing::TestWithParam<CasoIni> {};

TEST_P(FormatoConferidoTest, IsComparedWithTheRows)
{
    const Pequeno escritorio;
    escritorio.TrocaNoIni(GetParam().de, GetParam().para);
    Muda(escritorio, GetParam().comandos);
    const Bytes antes(escritorio);
    const Execucao confere = Confere(escritorio);
    EXPECT_THAT(Achados(confere), testing::ElementsAreArray(GetParam().dito));
    const bool defeito = !GetParam().dito.empty() && GetParam().dito[0].starts_with("Defeito");
    EXPECT_EQ(confere.codigo, defeito ? 3 : 0);
    EXPECT_TRUE(Bytes(escritorio) == antes);
}

constexpr const char *kNada = "SELECT 1";

INSTANTIATE_TEST_SUITE_P(
    Bancos, FormatoConferidoTest,
    testing::Values(
        CasoIni{"KeyMissing",
                "003=",
                ";003=",
                kNada,
                {"Defeito: Bancos, linha 3 (Codigo \"003\"): falta a chave 003 da seção Formato do QX70.INI, "
                 "com as "
                 "posições do banco."}},
        CasoIni{"SectionMissing",
                "[Formato]",
                "[Outra]",
                "DELETE FROM Bancos WHERE Codigo>'001'",
                {"Defeito: Bancos, linha 1 (Codigo \"001\"): falta a chave 001 da seção Formato do QX70.INI, "
                 "com as "
                 "posições do banco."}},
        CasoIni{"LineDiffers",
                "002=02,",
                "002=12,",
                kNada,
                {"Defeito: Bancos, linha 2 (Codigo \"002\"), L1: \"002\" na tabela, mas \"12\" na chave 002 "
                 "da seção "
                 "Formato do QX70.INI."}},
        CasoIni{"LastColumnDiffers",
                "35,58",
                "35,158",
                kNada,
                {"Defeito: Bancos, linha 2 (Codigo \"002\"), C8: \"058\" na tabela, mas \"158\" na chave 002 "
                 "da seção "
                 "Formato do QX70.INI."}},
        CasoIni{"NameDiffers",
                "Vale Verde",
                "Vale Seco",
                kNada,
                {"Defeito: Bancos, linha 3 (Codigo \"003\"), Nome: \"Banco Vale Verde\" na tabela, mas "
                 "\"Banco Vale "
                 "Seco\" na chave 003 da seção Formato do QX70.INI."}},
        CasoIni{"TooFewNumbers",
                "40,65 ",
                "40 ",
                kNada,
                {"Defeito: a chave 001 da seção Formato do QX70.INI não tem as suas 13 posições: "
                 "\"01,05,07,10,13,92,17,09,11,50,31,40    ; Banco Serra Azul\"."}},
        CasoIni{"NoNumber",
                "01,05",
                "x,05",
                kNada,
                {"Defeito: a chave 001 da seção Formato do QX70.INI não tem as suas 13 posições: "
                 "\"x,05,07,10,13,92,17,09,11,50,31,40,65    ; Banco Serra Azul\"."}},
        CasoIni{"BankDeleted",
                "001",
                "001",
                "DELETE FROM Bancos WHERE Codigo='001'",
                {"Aviso: a chave 001 da seção Formato do QX70.INI é de um banco que não está na tabela "
                 "Bancos (foi "
                 "excluído?)."}},
        CasoIni{
            "NumberFromAHundredOn", "12,88", "12,188", "UPDATE Bancos SET C1='188' WHERE Codigo='002'", {}},
        CasoIni{"SameNumberWrittenAnotherWay", "12,88", " 12 , 088", kNada, {}},
        CasoIni{"LongNameIsCutInTheKey",
                "Banco Serra Azul",
                "Banco Serra Azul do ",
                "UPDATE Bancos SET Nome='Banco Serra Azul do Norte' WHERE Codigo='001'",
                {}},
        CasoIni{"NameWithAnAccent",
                "Serra Azul",
                "S\xE3o Jo\xE3o",
                "UPDATE Bancos SET Nome='Banco São João' WHERE "
                "Codigo='001'",
                {}},
        CasoIni{"NameOutsideTheCodePage",
                "Serra Azul",
                "?",
                "UPDATE Bancos SET Nome='Banco Ω' WHERE Codigo='001'",
                {}},
        CasoIni{"SettingsInUtf8", "[Formato]", "\xEF\xBB\xBF[Formato]", kNada, {}},
        CasoIni{"NameWithAnAccentInUtf8",
                "[Formato]\r\n001=01,05,07,10,13,92,17,09,11,50,31,40,65    ; Banco Serra Azul",
                "\xEF\xBB\xBF[formato]\r\n001=01,05,07,10,13,92,17,09,11,50,31,40,65    ; S\xC3\xA3o",
                "UPDATE Bancos SET Nome='São' WHERE Codigo='001'",
                {}}),
    [](const auto &caso) { return caso.param.nome; });

constexpr const char *kBancoDeTransferencia =
    "INSERT INTO Transferencia VALUES('033','Banco "
    "Um','002','005','007','012','012','015','015','091','023','008','060',"
    "'093','060','093')";
constexpr const char *kChaveDeTransferencia = "[ChequeTransf]\r\n033=002,005,007,012,012,015,015,091,023,008,"
                                              "060,093,060,093    ; Banco Um\r\n[Formato]";

INSTANTIATE_TEST_SUITE_P(
    Transferencia, FormatoConferidoTest,
    testing::Values(
        CasoIni{"InStep", "[Formato]", kChaveDeTransferencia, kBancoDeTransferencia, {}},
        CasoIni{"KeyWithoutARowIsTheRule", "[Formato]", kChaveDeTransferencia, kNada, {}},
        CasoIni{
            "RowWithoutAKey",
            "[Formato]",
            "[Formato]",
            kBancoDeTransferencia,
            {"Defeito: Transferencia, linha 1 (Codigo \"033\"): falta a chave 033 da seção ChequeTransf do "
             "QX70.INI, com as posições do banco."}},
        CasoIni{"NumbersOfTwoDigits",
                "[Formato]",
                "[ChequeTransf]\r\n033=02,05,07,12,12,15,15,91,23,08,60,93,60,93    ; Banco Um\r\n[Formato]",
                kNada,
                {"Defeito: a chave 033 da seção ChequeTransf do QX70.INI não tem as suas 14 posições: "
                 "\"02,05,07,12,12,15,15,91,23,08,60,93,60,93    ; Banco Um\"."}}),
    [](const auto &caso) { return caso.param.nome; });

TEST(TransferenciaConferida, ARowOlderThanItsKeyIsANotice)
{
    const Pequeno escritorio;
    escritorio.TrocaNoIni("[Formato]", kChaveDeTransferencia);
    Muda(escritorio, kBancoDeTransferencia);
    Muda(escritorio, "UPDATE Transferencia SET C7='090'");
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 0);
    EXPECT_THAT(
        Achados(confere),
        ElementsAre(
            "Aviso: Transferencia, linha 1 (Codigo \"033\"), C7: \"090\" na tabela, mas \"093\" na chave "
            "033 da seção ChequeTransf do QX70.INI."));
}

TEST(ConfiguracoesConferidas, AreFoundInOtherLetters)
{
    const Pequeno escritorio;
    ASSERT_TRUE(QFile::rename(escritorio.Ini(), escritorio.Caminho(QStringLiteral("qx70.ini"))));
    ASSERT_TRUE(QFile::rename(escritorio.Loja(), escritorio.Caminho(QStringLiteral("Qx70.mdb"))));
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 0);
    EXPECT_THAT(Achados(confere), IsEmpty());
}

TEST(ConfiguracoesConferidas, ThatCannotBeReadAreADefect)
{
    const Pequeno escritorio;
    ASSERT_TRUE(QFile::remove(escritorio.Ini()));
    ASSERT_TRUE(QDir().mkdir(escritorio.Ini()));
    const Execucao confere = Confere(escritorio);
    EXPECT_EQ(confere.codigo, 3);
    EXPECT_THAT(Achados(confere),
                ElementsAre("Defeito: o arquivo " + escritorio.Ini().toStdString() +
                            " não pode ser lido; as posições dos bancos não foram comparadas."));
}

} // namespace
