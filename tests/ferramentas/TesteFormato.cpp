// qx70-banco importa: the banks that come, and their keys in section Formato of QX70.INI.
#include "Mudanca.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>

using testing::HasSubstr;
using testing::Not;

namespace {

const char *const kBancosCsv = "Codigo;Nome;L1;L2;L3;L4;L5;C1;C2;C3;C4;C5;C6;C7;C8\r\n"
                               "1;BANCO EXEMPLO;1;5;7;10;13;92;17;9;11;50;31;40;65\r\n"
                               "2;Um nome de banco bem comprido;1;;;;;;;;;;;;112\r\n";

TEST(Formato, IsLeftAloneAndWhatItLacksIsTold)
{
    const Mudanca mudanca;
    const QByteArray antes = "[Formato]\r\n001=01,05,07,10,13,92,17,09,11,50,31,40,65    ; BANCO EXEMPLO\r\n"
                             "003=1,2\r\n; fim";
    EscreveArquivo(mudanca.Ini(), antes);
    mudanca.Poe("Bancos.csv", std::string(kBancosCsv) + "3;Terceiro;1;2;3;4;5;6;7;8;9;10;11;12;13\r\n");
    const Execucao importa = mudanca.Importa();
    ASSERT_EQ(importa.codigo, 0) << importa.erros.toStdString();
    EXPECT_THAT(importa.saida.toStdString(), HasSubstr("Bancos importados sem chave na seção Formato de"));
    EXPECT_THAT(
        importa.saida.toStdString(),
        HasSubstr("QX70.INI:\n  002=01,00,00,00,00,00,00,00,00,00,00,00,112    ; Um nome de banco bem\n"));
    EXPECT_THAT(importa.saida.toStdString(),
                HasSubstr("; a certa é:\n  003=01,02,03,04,05,06,07,08,09,10,11,12,13    ; Terceiro\n"));
    EXPECT_THAT(importa.saida.toStdString(), HasSubstr("clique em Alterar"));
    EXPECT_THAT(importa.saida.toStdString(), Not(HasSubstr("001=")));
    EXPECT_EQ(LeArquivo(mudanca.Ini()), antes);
}

TEST(Formato, IsNotSpokenOfWhereItAgrees)
{
    const Mudanca mudanca;
    EscreveArquivo(mudanca.Ini(), "[Formato]\r\n007=1,2,3,4,5,6,7,8,9,10,11,12,13    ; Luz\r\n");
    mudanca.Poe("Bancos.csv", "Codigo;Nome;L1;L2;L3;L4;L5;C1;C2;C3;C4;C5;C6;C7;C8\r\n"
                              "007;Luz;001;002;003;004;005;006;007;008;009;010;011;012;013\r\n");
    EXPECT_EQ(mudanca.Importa().saida, Q("Bancos: 1 linha\n"));
}

TEST(Formato, IsNotMadeWhereThereIsNoSettingsFile)
{
    const Mudanca mudanca;
    mudanca.Poe("Bancos.csv", kBancosCsv);
    ASSERT_EQ(mudanca.Importa().codigo, 0);
    EXPECT_EQ(NomesEm(mudanca.Caminho()), Opcoes("QX70.MDB"));
}

TEST(Formato, IsWrittenWhenAskedAndTheRestStays)
{
    const Mudanca mudanca;
    EscreveArquivo(mudanca.Ini(),
                   "; da casa\r\n[Formato]\r\n002=velho\r\n009=outro\r\n[Sistema]\r\nport=COM2\r\n");
    mudanca.Poe("Bancos.csv", kBancosCsv);
    const Execucao importa = mudanca.Importa({Q("--formato")});
    ASSERT_EQ(importa.codigo, 0) << importa.erros.toStdString();
    EXPECT_THAT(importa.saida.toStdString(), HasSubstr("QX70.INI: 2 chaves na seção Formato"));
    EXPECT_EQ(
        LeArquivo(mudanca.Ini()).toStdString(),
        "; da casa\r\n[Formato]\r\n002=01,00,00,00,00,00,00,00,00,00,00,00,112    ; Um nome de banco bem\r\n"
        "009=outro\r\n001=01,05,07,10,13,92,17,09,11,50,31,40,65    ; BANCO EXEMPLO\r\n"
        "[Sistema]\r\nport=COM2\r\n");
    EXPECT_EQ(Banco({Q("importa"), mudanca.Caminho(), mudanca.Arquivo("Bancos.csv"), Q("--formato")}).codigo,
              1);
}

TEST(Formato, StopsTheImportWhenTheSettingsCannotBeWritten)
{
    const Mudanca mudanca;
    ASSERT_TRUE(QDir(mudanca.Caminho()).mkdir(Q("QX70.INI")));
    mudanca.Poe("Bancos.csv", kBancosCsv);
    const Execucao importa = mudanca.Importa({Q("--formato")});
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("QX70.INI não pode ser gravado"));
    EXPECT_EQ(Valor(mudanca.Loja(), "SELECT count(*) FROM Bancos"), "0");
}

TEST(Formato, StaysWhenNoBankCame)
{
    const Mudanca mudanca;
    mudanca.Poe("Cidade.csv", "Codigo;Nome\r\n00001;Natal\r\n");
    EXPECT_EQ(mudanca.Importa({Q("--formato")}).codigo, 0);
    EXPECT_EQ(NomesEm(mudanca.Caminho()), Opcoes("QX70.MDB"));
}

} // namespace
