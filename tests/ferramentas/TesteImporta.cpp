// qx70-banco importa: all lines of all files or none, and the rows as the program would have stored them.
#include "Mudanca.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>

using testing::HasSubstr;

namespace {

const char *const kTudo =
    "INSERT INTO Bancos(Codigo, Nome, L1, C8) VALUES ('237', 'Banco \"Dois; Três\"', '001', '065'), "
    "('001', NULL, NULL, '');"
    "INSERT INTO Transferencia(Codigo, Nome, L7) VALUES ('009', 'Água, Luz', '015');"
    "INSERT INTO Favorecido VALUES ('00002', 'José ''Zé'' Araújo'), ('00001', 'linha um' || char(13, 10) || "
    "'linha dois' || char(10)), ('00003', ''), ('00004', ' ');"
    "INSERT INTO Cidade VALUES ('00010', '€ – “São”'), ('00002', 'a' || char(9) || 'b');"
    "INSERT INTO Log VALUES ('0000099999', '99999', '001', '1000,', '.', 'São Paulo', '31/12/99', ' ', ' ', "
    "'', '', "
    "''), ('0000100000', '00000', '237', '1234,5', 'Ação', 'Natal', '01/01/00', '000123', 'C', NULL, NULL, "
    "NULL), "
    "('0000100002', '00002', '002', ',5', '\"', ';', '29/02/00', 'A-1 ', ' ', ' ', 'x' || char(10), '\"\"');"
    "INSERT INTO Script(Codigo, Nome, l1, c11) VALUES ('007', 'Cópia', '001', '080')";

struct CasoVolta {
    std::string nome;
    const char *opcoes;
};
void PrintTo(const CasoVolta &c, std::ostream *os)
{
    *os << c.nome;
}

class IdaEVoltaTest : public testing::TestWithParam<CasoVolta> {};

TEST_P(IdaEVoltaTest, GivesTheSameRowsInTheSameOrder)
{
    const Escritorio antigo;
    Executa(antigo, kTudo);
    const QString csv = antigo.Caminho(Q("csv"));
    ASSERT_EQ(Banco(QStringList{Q("exporta"), antigo.Caminho(), csv} + Opcoes(GetParam().opcoes)).codigo, 0);
    const Escritorio novo;
    const Execucao importa = Banco({Q("importa"), novo.Caminho(), csv});
    ASSERT_EQ(importa.codigo, 0) << importa.erros.toStdString();
    EXPECT_EQ(novo.Conteudo(), antigo.Conteudo());
    EXPECT_THAT(importa.saida.toStdString(),
                HasSubstr("Bancos: 2 linhas\nTransferencia: 1 linha\nFavorecido: 4 linhas\nCidade: 2 linhas\n"
                          "Log: 3 linhas\nScript: 1 linha\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Formas, IdaEVoltaTest,
    testing::Values(CasoVolta{"AsItComes", ""}, CasoVolta{"Utf8", "--codificacao utf-8"},
                    CasoVolta{"Commas", "--separador ,"}, CasoVolta{"Tabs", "--separador tab"},
                    CasoVolta{"Utf8AndCommas", "--codificacao utf-8 --separador virgula"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(IdaEVolta, GivesAWholeOfficeBack)
{
    const Escritorio antigo;
    ASSERT_EQ(antigo.Semeia(Opcoes("--bancos 300 --cidades 500 --favorecidos 500 --cheques 5000")).codigo, 0);
    const QString csv = antigo.Caminho(Q("csv"));
    ASSERT_EQ(Banco({Q("exporta"), antigo.Caminho(), csv}).codigo, 0);
    const Escritorio novo;
    ASSERT_EQ(Banco({Q("importa"), novo.Caminho(), csv}).codigo, 0);
    EXPECT_EQ(novo.Conteudo(), antigo.Conteudo());
    EXPECT_EQ(Banco({Q("confere"), novo.Caminho()}).codigo, 0);
}

struct CasoRuim {
    std::string nome;
    const char *arquivo;
    std::string bytes;
    std::vector<const char *> ditos; ///< each with its line
};
void PrintTo(const CasoRuim &c, std::ostream *os)
{
    *os << c.nome;
}

class LinhaRuimTest : public testing::TestWithParam<CasoRuim> {};

TEST_P(LinhaRuimTest, IsNamedAndNothingIsImported)
{
    const Mudanca mudanca;
    Executa(mudanca, "INSERT INTO Bancos(Codigo) VALUES ('050'); INSERT INTO Log(\"Index\", Codigo) VALUES "
                     "('0000000005', '00005')");
    const QByteArray antes = LeArquivo(mudanca.Loja());
    mudanca.Poe(GetParam().arquivo, GetParam().bytes);
    const Execucao importa = mudanca.ImportaArquivo(GetParam().arquivo);
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_TRUE(importa.saida.isEmpty());
    for (const char *dito : GetParam().ditos)
        EXPECT_THAT(importa.erros.toStdString(), HasSubstr(std::string(GetParam().arquivo) + ", " + dito));
    EXPECT_EQ(importa.erros.count(Q(", linha ")), std::ssize(GetParam().ditos))
        << importa.erros.toStdString();
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("Nada foi importado."));
    EXPECT_EQ(LeArquivo(mudanca.Loja()), antes);
    EXPECT_EQ(NomesEm(mudanca.Caminho()), Opcoes("QX70.MDB"));
}

const std::string kCabecalho = "Index;Codigo;V_CH;Data\r\n";

INSTANTIATE_TEST_SUITE_P(
    Arquivos, LinhaRuimTest,
    testing::Values(
        CasoRuim{"NothingAtAll", "Cidade.csv", "", {"linha 1: falta a linha com os nomes dos campos."}},
        CasoRuim{"EmptyHead", "Cidade.csv", "\r\n1;a\r\n", {"linha 1: a linha está vazia."}},
        CasoRuim{"UnknownField",
                 "Cidade.csv",
                 "Codigo;Estado\r\n1;RN\r\n",
                 {"linha 1: a tabela Cidade não tem o campo \"Estado\"."}},
        CasoRuim{"FieldTwice",
                 "Cidade.csv",
                 "Codigo;Nome;NOME\r\n",
                 {"linha 1: o campo Nome aparece duas vezes."}},
        CasoRuim{"NoKeyField", "Cidade.csv", "Nome\r\nNatal\r\n", {"linha 1: falta o campo Codigo."}},
        CasoRuim{"NoIndexField", "Log.csv", "Codigo;Data\r\n", {"linha 1: falta o campo Index."}},
        CasoRuim{"TooFewFields",
                 "Cidade.csv",
                 "Codigo;Nome\r\n1;a\r\n2\r\n3;c\r\n",
                 {"linha 3: há 1 campo, e na primeira linha há 2."}},
        CasoRuim{"TooManyFields",
                 "Cidade.csv",
                 "Codigo;Nome\r\n1;a;\r\n",
                 {"linha 2: há 3 campos, e na primeira linha há 2."}},
        CasoRuim{"EmptyLineInside",
                 "Cidade.csv",
                 "Codigo;Nome\r\n1;a\r\n\r\n2;b\r\n",
                 {"linha 3: a linha está vazia."}},
        CasoRuim{
            "UnclosedQuotes",
            "Cidade.csv",
            "Codigo;Nome\r\n1;a\r\n2;\"b\r\n3;c\r\n",
            {"linha 3: as aspas abertas nesta linha não são fechadas; o resto do arquivo não foi lido."}},
        CasoRuim{"Nul",
                 "Cidade.csv",
                 "Codigo;Nome\r\n1;a" + std::string(1, '\0') + "\r\n",
                 {"linha 2: há um caractere nulo (byte 00)."}},
        CasoRuim{"OpenByteOfTheCodePage",
                 "Cidade.csv",
                 "Codigo;Nome\r\n1;a\x81\r\n",
                 {"linha 2: Nome tem o byte 81, que não é de um texto em Windows-1252."}},
        CasoRuim{"WrongByteBehindTheMark",
                 "Cidade.csv",
                 "\xEF\xBB\xBF"
                 "Codigo;Nome\r\n1;S\xE3o\r\n",
                 {"linha 2: Nome tem o byte e3, que não é de um texto em UTF-8."}},
        CasoRuim{"LinesBehindABreakInQuotes",
                 "Cidade.csv",
                 "Codigo;Nome\r\n1;\"a\r\nb\"\r\nx;c\r\n",
                 {"linha 4: Codigo \"x\" não é um número de até 5 algarismos."}},
        CasoRuim{"EveryBadLineAndEveryFault",
                 "Bancos.csv",
                 "Codigo;L1\r\n1;x\r\n2;3\r\ny;z\r\n",
                 {"linha 2: L1 \"x\" não é um número inteiro de até 3 algarismos.",
                  "linha 4: Codigo \"y\" não é um número de até 3 algarismos; L1 \"z\" não é"}},
        CasoRuim{"CodeInTheStore",
                 "Bancos.csv",
                 "Codigo\r\n51\r\n50\r\n",
                 {"linha 3: Codigo 050 já está no banco de dados."}},
        CasoRuim{"CodeTwiceInTheFile",
                 "Bancos.csv",
                 "Codigo\r\n007\r\n8\r\n7\r\n",
                 {"linha 4: Codigo 007 já está na linha 2."}},
        CasoRuim{"IndexInTheStore",
                 "Log.csv",
                 kCabecalho + "5;5;1,;01/01/04\r\n",
                 {"linha 2: Index 0000000005 já está no banco de dados."}},
        CasoRuim{"IndexTwiceInTheFile",
                 "Log.csv",
                 kCabecalho + "7;7;1,;01/01/04\r\n8;8;1,;01/01/04\r\n7;7;1,;01/01/04\r\n",
                 {"linha 4: Index 0000000007 já está na linha 2."}},
        CasoRuim{"IndexBelowTheLastCheque",
                 "Log.csv",
                 kCabecalho + "4;4;1,;01/01/04\r\n6;6;1,;01/01/04\r\n",
                 {"linha 2: Index 0000000004 é menor que o do último cheque do banco de dados, 0000000005"}},
        CasoRuim{"IndexOutOfOrder",
                 "Log.csv",
                 kCabecalho + "9;9;1,;01/01/04\r\n8;8;1,;01/01/04\r\n10;10;1,;01/01/04\r\n",
                 {"linha 3: Index 0000000008 vem depois de 0000000009; ponha as linhas na ordem do Index."}},
        CasoRuim{
            "ChequeOfWrongFields",
            "Log.csv",
            kCabecalho + "9;8;mil;31/04/04\r\n",
            {"linha 2: Codigo \"00008\" não são os últimos algarismos do Index, 00009; V_CH \"mil\" não é um "
             "valor; Data \"31/04/04\" não é uma data na forma dd/mm/aa."}},
        CasoRuim{"OnlySeparators",
                 "Cidade.csv",
                 "Codigo;Nome\r\n1;a\r\n;\r\n",
                 {"linha 3: Codigo está vazio, e sem ele o registro não pode ser achado."}}),
    [](const auto &caso) { return caso.param.nome; });

TEST(LinhaRuim, IsNamedTwentyTimesAndThenCounted)
{
    const Mudanca mudanca;
    std::string bytes = "Codigo;Nome\r\n";
    for (int i = 0; i < 23; ++i)
        bytes += "x;a\r\n";
    mudanca.Poe("Cidade.csv", bytes);
    const Execucao importa = mudanca.Importa();
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_EQ(importa.erros.count(Q("Cidade.csv, linha ")), 20);
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("linha 21: "));
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("e mais 3 linhas com erro."));
}

TEST(Importa, BringsNothingInWhenTheLastOfManyFilesIsBad)
{
    const Mudanca mudanca;
    ASSERT_EQ(mudanca.Semeia(Opcoes("--cheques 20")).codigo, 0);
    const QByteArray loja = LeArquivo(mudanca.Loja());
    const QByteArray ini = LeArquivo(mudanca.Ini());
    mudanca.Poe("Bancos.csv", "Codigo;Nome\r\n700;Novo\r\n");
    mudanca.Poe("Favorecido.csv", "Codigo;Nome\r\n700;Novo\r\n");
    mudanca.Poe("Script.csv", "Codigo;Nome\r\n700;Novo\r\n701\r\n");
    const Execucao importa = mudanca.Importa({Q("--formato")});
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("Script.csv, linha 3: há 1 campo"));
    EXPECT_EQ(LeArquivo(mudanca.Loja()), loja);
    EXPECT_EQ(LeArquivo(mudanca.Ini()), ini);
    EXPECT_EQ(NomesEm(mudanca.Caminho()), Opcoes("QX70.INI QX70.MDB"));
}

TEST(Importa, BringsNothingInWhenALongLogIsBadAtItsEnd)
{
    const Mudanca mudanca;
    Executa(mudanca, "INSERT INTO Cidade VALUES ('00001', 'Natal')");
    std::string bytes = "Index;Codigo;V_CH;Data;Comentario\r\n";
    const std::string comentario(80, 'x');
    for (int i = 1; i <= 60000; ++i) {
        const std::string numero = std::to_string(i);
        bytes += numero + ";" + numero + ";1,;01/01/04;" + comentario + "\r\n";
    }
    mudanca.Poe("Log.csv", bytes + "60000;60000;1,;01/01/04;\r\n");
    const std::string antes = mudanca.Conteudo();
    const Execucao importa = mudanca.Importa();
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_THAT(importa.erros.toStdString(),
                HasSubstr("linha 60002: Index 0000060000 já está na linha 60001."));
    EXPECT_EQ(mudanca.Conteudo(), antes);
}

TEST(Importa, TakesFieldsInAnyOrderAndCaseAndLeavesTheOthersWithoutValue)
{
    const Mudanca mudanca;
    mudanca.Poe("BANCOS.Csv", "c8,NOME,codigo\n65,\"Banco, novo\",7\n,\"\",008");
    const Execucao importa = mudanca.Importa();
    ASSERT_EQ(importa.codigo, 0) << importa.erros.toStdString();
    EXPECT_EQ(Linhas(mudanca.Loja(), "SELECT Codigo, Nome, L1, C8 FROM Bancos ORDER BY rowid"),
              (std::vector<std::vector<std::string>>{{"007", "Banco, novo", "<nada>", "065"},
                                                     {"008", "", "<nada>", "<nada>"}}));
}

TEST(Importa, TellsHowManyNumbersGotTheirZerosBack)
{
    const Mudanca mudanca;
    mudanca.Poe("Favorecido.csv", "Codigo;Nome\r\n1;Ana\r\n00002;Eva\r\n30;Ivo\r\n");
    mudanca.Poe("Cidade.csv", "Codigo;Nome\r\n5;Natal\r\n");
    mudanca.Poe("Log.csv", "Index;Codigo;Banco;V_CH;Data;NRCH;StCancel\r\n1;1;1;10,5;01/02/04;;\r\n");
    const Execucao importa = mudanca.Importa();
    ASSERT_EQ(importa.codigo, 0) << importa.erros.toStdString();
    EXPECT_EQ(importa.saida, Q("Favorecido: 3 linhas (2 números completados com zeros à esquerda)\n"
                               "Cidade: 1 linha (1 número completado com zeros à esquerda)\n"
                               "Log: 1 linha (3 números completados com zeros à esquerda)\n"));
    EXPECT_EQ(Valor(mudanca.Loja(), "SELECT group_concat(Codigo) FROM Favorecido"), "00001,00002,00030");
    EXPECT_EQ(Linhas(mudanca.Loja(), "SELECT \"Index\", Codigo, Banco, NRCH, StCancel, Favor FROM Log"),
              (std::vector<std::vector<std::string>>{{"0000000001", "00001", "001", " ", " ", "<nada>"}}));
}

TEST(Importa, AddsBehindTheRowsThatAreThere)
{
    const Mudanca mudanca;
    Executa(mudanca, "INSERT INTO Cidade VALUES ('00009', 'Natal')");
    mudanca.Poe("Cidade.csv", "Codigo;Nome\r\n3;Belém\r\n1;Recife\r\n");
    ASSERT_EQ(mudanca.Importa().codigo, 0);
    EXPECT_EQ(Linhas(mudanca.Loja(), "SELECT Codigo FROM Cidade ORDER BY rowid"),
              (std::vector<std::vector<std::string>>{{"00009"}, {"00003"}, {"00001"}}));
}

TEST(Importa, TakesSeveralFilesOfOneTableAndNamesTheFileOfARepeatedCode)
{
    const Mudanca mudanca;
    for (const char *ano : {"2003", "2004"})
        ASSERT_TRUE(QDir(mudanca.Arquivo(".")).mkdir(Q(ano)));
    mudanca.Poe("2003/Cidade.csv", "Codigo;Nome\r\n1;Natal\r\n");
    mudanca.Poe("2004/Cidade.csv", "Codigo;Nome\r\n2;Belém\r\n");
    const QStringList chamada{Q("importa"), mudanca.Caminho(), mudanca.Arquivo("2003/Cidade.csv"),
                              mudanca.Arquivo("2004")};
    const Execucao importa = Banco(chamada);
    ASSERT_EQ(importa.codigo, 0) << importa.erros.toStdString();
    EXPECT_EQ(importa.saida, Q("Cidade: 2 linhas (2 números completados com zeros à esquerda)\n"));
    mudanca.Poe("2003/Cidade.csv", "Codigo;Nome\r\n3;Recife\r\n");
    mudanca.Poe("2004/Cidade.csv", "Codigo;Nome\r\n3;Recife\r\n");
    EXPECT_THAT(Banco(chamada).erros.toStdString(),
                HasSubstr("2004/Cidade.csv, linha 2: Codigo 00003 já está na linha 2 de " +
                          mudanca.Arquivo("2003/Cidade.csv").toStdString()));
}

TEST(Importa, TakesAFileOfAnotherNameForTheTableTold)
{
    const Mudanca mudanca;
    mudanca.Poe("clientes.txt", "Codigo\tNome\r\n1\tAna; Eva\r\n");
    ASSERT_EQ(mudanca.ImportaArquivo("clientes.txt", Opcoes("--tabela favorecido")).codigo, 0);
    EXPECT_EQ(Valor(mudanca.Loja(), "SELECT Nome FROM Favorecido"), "Ana; Eva");
}

struct CasoLido {
    std::string nome;
    std::string bytes;
    const char *opcoes;
    const char *lido; ///< the name of the first city
};
void PrintTo(const CasoLido &c, std::ostream *os)
{
    *os << c.nome;
}

class DeteccaoTest : public testing::TestWithParam<CasoLido> {};

TEST_P(DeteccaoTest, ReadsTheTextAsItWasMeant)
{
    const Mudanca mudanca;
    mudanca.Poe("Cidade.csv", GetParam().bytes);
    const Execucao importa = mudanca.Importa(Opcoes(GetParam().opcoes));
    ASSERT_EQ(importa.codigo, 0) << importa.erros.toStdString();
    EXPECT_EQ(Valor(mudanca.Loja(), "SELECT Nome FROM Cidade"), GetParam().lido);
}

INSTANTIATE_TEST_SUITE_P(
    Arquivos, DeteccaoTest,
    testing::Values(CasoLido{"Ansi", "Codigo;Nome\r\n1;S\xE3o \x80\r\n", "", "São €"},
                    CasoLido{"Utf8WithMark",
                             "\xEF\xBB\xBF"
                             "Codigo;Nome\r\n1;São Łódź\r\n",
                             "", "São Łódź"},
                    CasoLido{"Utf8WithoutMark", "Codigo;Nome\r\n1;São\r\n", "", "São"},
                    CasoLido{"Utf8OnlyNearTheEnd", "Codigo;Nome\r\n1;a\r\n2;é\r\n", "", "a"},
                    CasoLido{"AnsiThatLooksLikeUtf8", "Codigo;Nome\r\n1;S\xC3\xA3o\r\n",
                             "--codificacao Windows-1252", "SÃ£o"},
                    CasoLido{"Utf8Asked", "Codigo;Nome\r\n1;São\r\n", "--codificacao utf-8", "São"},
                    CasoLido{"MarkWithUtf8Asked",
                             "\xEF\xBB\xBF"
                             "Codigo;Nome\r\n1;São\r\n",
                             "--codificacao utf-8", "São"},
                    CasoLido{"QuotesBehindTheMark", "\xEF\xBB\xBF\"Codigo\";\"Nome\"\r\n1;a\r\n", "", "a"},
                    CasoLido{"Comma", "Codigo,Nome\r\n1,a;b\r\n", "", "a;b"},
                    CasoLido{"Tab", "Codigo\tNome\r\n1\ta;b,c\r\n", "", "a;b,c"},
                    CasoLido{"QuotedHead", "\"Codigo\",\"Nome\"\r\n\"1\",\"a\"\r\n", "", "a"},
                    CasoLido{"EmptyLastLine", "Codigo;Nome\r\n1;a\r\n\r\n", "", "a"},
                    CasoLido{"SeparatorAsked", "Nome;Codigo\r\n\"a,b\";1\r\n", "--separador ;", "a,b"}),
    [](const auto &caso) { return caso.param.nome; });

TEST(Importa, RefusesUtf16WithAdvice)
{
    const Mudanca mudanca;
    mudanca.Poe("Cidade.csv", std::string("\xFF\xFE"
                                          "C\0o\0",
                                          6));
    const Execucao importa = mudanca.Importa();
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("está em UTF-16"));
}

TEST(Importa, TellsOfAStoreInUse)
{
    const Mudanca mudanca;
    mudanca.Poe("Cidade.csv", "Codigo;Nome\r\n1;Natal\r\n");
    SQLite::Database outro(mudanca.Loja().toStdString(), SQLite::OPEN_READWRITE);
    outro.exec("BEGIN IMMEDIATE");
    const Execucao importa = mudanca.Importa();
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("em uso por outro programa"));
}

TEST(Importa, TellsOfAMissingStoreAndMakesNone)
{
    const Mudanca mudanca;
    mudanca.Poe("Cidade.csv", "Codigo;Nome\r\n1;Natal\r\n");
    ASSERT_TRUE(QFile::remove(mudanca.Loja()));
    const Execucao importa = mudanca.Importa();
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("Não existe o banco de dados"));
    EXPECT_TRUE(NomesEm(mudanca.Caminho()).isEmpty());
}

TEST(Importa, TellsOfAStoreThatLacksTheTable)
{
    const Mudanca mudanca;
    Executa(mudanca, "DROP TABLE Cidade");
    mudanca.Poe("Cidade.csv", "Codigo;Nome\r\n1;Natal\r\n");
    const Execucao importa = mudanca.Importa();
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("não tem as tabelas e os campos esperados"));
}

TEST(Importa, LeavesTheStoreAsItWasOnAFullDisk)
{
    const Mudanca mudanca;
    ASSERT_EQ(mudanca.Semeia(Opcoes("--cheques 5")).codigo, 0);
    std::string bytes = "Codigo;Nome\r\n";
    for (int i = 100; i < 9000; ++i)
        bytes += std::to_string(i) + ";Um favorecido qualquer de nome comprido\r\n";
    mudanca.Poe("Favorecido.csv", bytes);
    const std::string antes = mudanca.Conteudo();
    const QString comando = Q("trap '' XFSZ; ulimit -f 128; exec \"$0\" importa \"$1\" \"$2\"");
    const Execucao importa = ::Executa(Q("/bin/bash"), {Q("-c"), comando, CaminhoDoBanco(), mudanca.Caminho(),
                                                        mudanca.Arquivo("Favorecido.csv")});
    EXPECT_EQ(importa.codigo, 1);
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr("QX70.MDB não pôde ser gravado"));
    EXPECT_EQ(mudanca.Conteudo(), antes);
}

struct CasoChamada {
    std::string nome;
    int codigo;
    std::vector<const char *> palavras; ///< "PASTA" stands for the folder of the store
    const char *dito;
};
void PrintTo(const CasoChamada &c, std::ostream *os)
{
    *os << c.nome;
}

class ImportaChamadaTest : public testing::TestWithParam<CasoChamada> {};

TEST_P(ImportaChamadaTest, IsRefusedWithTheReason)
{
    const Mudanca mudanca;
    mudanca.Poe("clientes.csv", "Codigo;Nome\r\n1;Ana\r\n");
    ASSERT_TRUE(QDir(mudanca.Arquivo(".")).mkdir(Q("vazia")));
    QStringList argumentos{Q("importa")};
    for (const char *palavra : GetParam().palavras)
        argumentos.append(
            Q(palavra).replace(Q("PASTA"), mudanca.Caminho()).replace(Q("VINDOS"), mudanca.Arquivo(".")));
    const Execucao importa = Banco(argumentos);
    EXPECT_EQ(importa.codigo, GetParam().codigo);
    EXPECT_THAT(importa.erros.toStdString(), HasSubstr(GetParam().dito));
    EXPECT_EQ(NomesEm(mudanca.Caminho()), Opcoes("QX70.MDB"));
}

INSTANTIATE_TEST_SUITE_P(
    Chamadas, ImportaChamadaTest,
    testing::Values(
        CasoChamada{"NoFolder", 2, {}, "pede a pasta do banco de dados"},
        CasoChamada{"NoFile", 2, {"PASTA"}, "pede os arquivos CSV"},
        CasoChamada{"TableForAFolder", 2, {"PASTA", "VINDOS", "--tabela", "Log"}, "de um arquivo só"},
        CasoChamada{
            "TableForTwoFiles", 2, {"PASTA", "a.csv", "b.csv", "--tabela", "Log"}, "de um arquivo só"},
        CasoChamada{"TwoTablesForAFile",
                    2,
                    {"PASTA", "a.csv", "--tabela", "Log", "--tabela", "Script"},
                    "de um arquivo só"},
        CasoChamada{"UnknownOption", 2, {"PASTA", "a.csv", "--forca"}, "não conhece a opção \"--forca\""},
        CasoChamada{"FileOfNoTable",
                    1,
                    {"PASTA", "VINDOS/clientes.csv"},
                    "clientes.csv não tem o nome de uma tabela"},
        CasoChamada{
            "FolderWithAFileOfNoTable", 1, {"PASTA", "VINDOS"}, "clientes.csv não tem o nome de uma tabela"},
        CasoChamada{"FolderWithoutFiles", 1, {"PASTA", "VINDOS/vazia"}, "não tem nenhum arquivo .csv"},
        CasoChamada{"MissingFile", 1, {"PASTA", "VINDOS/Log.csv"}, "Não existe o arquivo"}),
    [](const auto &caso) { return caso.param.nome; });

} // namespace
