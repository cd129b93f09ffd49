// The settings file: what is read, what is written, and what stays as it was.
#include "plataforma/perfil/ProfileFile.h"
#include "plataforma/basico/Texto.h"

#include <csignal>
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace plataforma;

namespace {

/// All bytes of a literal, NULs too.
template <std::size_t N> QByteArray Bytes(const char (&literal)[N])
{
    return {literal, static_cast<qsizetype>(N) - 1};
}

class Pasta : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_pasta.isValid()); }
    [[nodiscard]] QString Caminho(const QString &nome = "QX70.INI") const { return m_pasta.filePath(nome); }
    void Poe(const QByteArray &bytes) const
    {
        QFile arquivo(Caminho());
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        ASSERT_EQ(arquivo.write(bytes), bytes.size());
    }
    [[nodiscard]] QByteArray Tira() const
    {
        QFile arquivo(Caminho());
        return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray("(no file)");
    }
    [[nodiscard]] std::string Le(const QString &secao, const QString &chave, int tamanho = 160) const
    {
        return ProfileFile(Caminho()).GetPrivateProfileString(secao, chave, "-2", tamanho).toStdString();
    }
    [[nodiscard]] bool Grava(const QString &secao, const QString &chave, const QString &valor) const
    {
        return ProfileFile(Caminho()).WritePrivateProfileString(secao, chave, valor);
    }

    QTemporaryDir m_pasta;
};

// Reading: one key "k" of the section "S".

struct CasoLeitura {
    std::string nome;
    QByteArray arquivo;
    QString valor;
};
void PrintTo(const CasoLeitura &caso, std::ostream *os)
{
    *os << caso.arquivo.toPercentEncoding("[]=; ").constData();
}
class LeituraTest : public Pasta, public testing::WithParamInterface<CasoLeitura> {};

TEST_P(LeituraTest, Reads)
{
    Poe(GetParam().arquivo);
    EXPECT_EQ(Le("S", "k"), GetParam().valor.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Perfil, LeituraTest,
    testing::Values(CasoLeitura{"Plain", "[S]\r\nk=v\r\n", "v"},
                    CasoLeitura{"LineFeedsOnly", "[S]\nk=v\n", "v"},
                    CasoLeitura{"NoFinalLineBreak", "[S]\r\nk=v", "v"},
                    CasoLeitura{"NoFinalLineFeed", "[S]\r\nk=v\r", "v"},
                    CasoLeitura{"NamesInAnotherCase", "[s]\r\nK=v\r\n", "v"},
                    CasoLeitura{"BlanksAround", "[S]\r\n  k \t=  v w  \r\n", "v w"},
                    CasoLeitura{"BlanksAroundTheSection", " [ S ] x\r\nk=v\r\n", "v"},
                    CasoLeitura{"EmptyValueIsNotMissing", "[S]\r\nk=\r\n", ""},
                    CasoLeitura{"OneBlankComesBack", "[S]\r\nk= \r\n", " "},
                    CasoLeitura{"OneBlankAtTheEndOfTheFile", "[S]\nk= ", " "},
                    CasoLeitura{"SeveralBlanksAreOne", "[S]\r\nk=     \r\n", " "},
                    CasoLeitura{"TabIsNoStoredBlank", "[S]\r\nk=\t\r\n", ""},
                    CasoLeitura{"QuotesAreStripped", "[S]\r\nk=\" v \"\r\n", " v "},
                    CasoLeitura{"ApostrophesAreStripped", "[S]\r\nk='v'\r\n", "v"},
                    CasoLeitura{"OnlyOnePairIsStripped", "[S]\r\nk=\"\"v\"\"\r\n", "\"v\""},
                    CasoLeitura{"UnequalQuotesStay", "[S]\r\nk=\"v'\r\n", "\"v'"},
                    CasoLeitura{"OneQuoteStays", "[S]\r\nk=\"\r\n", "\""},
                    CasoLeitura{"EmptyQuotes", "[S]\r\nk=\"\"\r\n", ""},
                    CasoLeitura{"SemicolonInTheValueStays", "[S]\r\nk=v ; w\r\n", "v ; w"},
                    CasoLeitura{"SecondEqualSignStays", "[S]\r\nk=a=b\r\n", "a=b"},
                    CasoLeitura{"CommentedKeyIsMissing", "[S]\r\n;k=v\r\n", "-2"},
                    CasoLeitura{"CommentAfterBlanks", "[S]\r\n  ;k=v\r\n", "-2"},
                    CasoLeitura{"LineWithoutEqualSignIsMissing", "[S]\r\nk\r\n", "-2"},
                    CasoLeitura{"FirstOfTwoEqualKeys", "[S]\r\nk=1\r\nK=2\r\n", "1"},
                    CasoLeitura{"FirstOfTwoEqualSections", "[S]\r\nj=1\r\n[S]\r\nk=2\r\n", "-2"},
                    CasoLeitura{"KeyOfAnotherSection", "[T]\r\nk=v\r\n[S]\r\nj=1\r\n", "-2"},
                    CasoLeitura{"KeyBehindAnotherSection", "[S]\r\n[T]\r\nk=v\r\n", "-2"},
                    CasoLeitura{"KeyBeforeAnySection", "k=v\r\n[S]\r\n", "-2"},
                    CasoLeitura{"SectionNeverClosed", "[S\r\nk=v\r\n", "-2"},
                    CasoLeitura{"PartOfTheName", "[S]\r\nkk=v\r\n", "-2"}, CasoLeitura{"EmptyFile", "", "-2"},
                    CasoLeitura{"AccentsAreWindows1252", "[S]\r\nk=S\xE3o Jo\xE3o \x80\r\n",
                                u"São João €"_qs},
                    CasoLeitura{"Utf8WithItsMark", "\xEF\xBB\xBF[S]\r\nk=S\xC3\xA3o\r\n", u"São"_qs},
                    CasoLeitura{"NulEndsTheValue", Bytes("[S]\r\nk=v\0w\r\n"), "v"},
                    CasoLeitura{"NulsElsewhere", Bytes("\0\0=\0\r\n[S]\0\r\n\0k=1\r\nk=v\r\n"), "v"}),
    [](const auto &caso) { return caso.param.nome; });

// Listing: the keys of the section "S".

struct CasoSecao {
    std::string nome;
    QByteArray arquivo;
    const char *chaves; ///< "name>value|" for each
};
void PrintTo(const CasoSecao &caso, std::ostream *os)
{
    *os << caso.arquivo.toPercentEncoding("[]=; ").constData();
}
class SecaoTest : public Pasta, public testing::WithParamInterface<CasoSecao> {};

TEST_P(SecaoTest, ListsWhatCanBeRead)
{
    Poe(GetParam().arquivo);
    const auto chaves = ProfileFile(Caminho()).GetPrivateProfileSection(" s ");
    ASSERT_TRUE(chaves.has_value());
    QString lista;
    for (const auto &[nome, valor] : *chaves) {
        lista += nome + '>' + valor + '|';
        EXPECT_EQ(Le("S", nome, 1000), valor.toStdString()) << nome.toStdString();
    }
    EXPECT_EQ(lista.toStdString(), GetParam().chaves);
}

INSTANTIATE_TEST_SUITE_P(
    Perfil, SecaoTest,
    testing::Values(CasoSecao{"InTheOrderOfTheFile", "[S]\r\nb=2\r\na=1\r\n", "b>2|a>1|"},
                    CasoSecao{"EmptyFile", "", ""}, CasoSecao{"EmptySection", "[S]\r\n[T]\r\nk=v\r\n", ""},
                    CasoSecao{"OnlyItsOwn", "j=0\r\n[S]\r\nk=1\r\n[T]\r\nl=2\r\n", "k>1|"},
                    CasoSecao{"FirstOfTwoEqualSections", "[S]\r\nk=1\r\n[S]\r\nl=2\r\n", "k>1|"},
                    CasoSecao{"FirstOfTwoEqualKeys", "[S]\r\n\xE1=1\r\nk=2\r\n\xC1=3\r\n", "á>1|k>2|"},
                    CasoSecao{"BlanksAround", "[S]\n  k\t=  v w \n", "k>v w|"},
                    CasoSecao{"BlankAndEmptyValues", "[S]\r\nk= \r\nl=\r\n", "k> |l>|"},
                    CasoSecao{"QuotesAreStripped", "[S]\r\nk=\" v\"\r\n", "k> v|"},
                    CasoSecao{"CommentsAndOtherLines", "[S]\r\n;k=v\r\nwords\r\n\r\nl=1\r\n", "l>1|"},
                    CasoSecao{"KeyWithoutAName", "[S]\r\n=v\r\nk=1\r\n", "k>1|"},
                    CasoSecao{"KeyThatNobodyCanAskFor", Bytes("[S]\r\nk\0=v\r\nl=1\r\n"), "l>1|"},
                    CasoSecao{"AccentsAreWindows1252", "[S]\r\nk=S\xE3o\r\n", "k>São|"},
                    CasoSecao{"Utf8WithItsMark", "\xEF\xBB\xBF[S]\r\nk=S\xC3\xA3o\r\n", "k>São|"}),
    [](const auto &caso) { return caso.param.nome; });

class PerfilTest : public Pasta {};

TEST_F(PerfilTest, ASectionIsListedWithWholeValues)
{
    Poe("[S]\r\nk=" + QByteArray(200, 'x') + "\r\n");
    EXPECT_EQ(ProfileFile(Caminho()).GetPrivateProfileSection("S")->at(0).second.size(), 200);
}

TEST_F(PerfilTest, AMissingFileHasNoKeysAndAFolderCannotBeListed)
{
    EXPECT_TRUE(ProfileFile(Caminho()).GetPrivateProfileSection("S")->isEmpty());
    ASSERT_TRUE(QDir().mkdir(Caminho()));
    EXPECT_FALSE(ProfileFile(Caminho()).GetPrivateProfileSection("S").has_value());
}

TEST_F(PerfilTest, AccentedNamesMatchWithoutRegardToCase)
{
    Poe("[SE\xC7\xC3O]\r\n\xE1gua=v\r\n");
    EXPECT_EQ(Le(u"seção"_qs, u"ÁGUA"_qs), "v");
}

TEST_F(PerfilTest, AValueIsCutToTheBuffer)
{
    Poe("[S]\r\nk=" + QByteArray(200, 'x') + "\r\n");
    EXPECT_EQ(Le("S", "k").size(), 159U);
    EXPECT_EQ(Le("S", "k", 201).size(), 200U);
    EXPECT_EQ(Le("S", "k", 2), "x");
    EXPECT_EQ(Le("S", "k", 1), "");
    EXPECT_EQ(Le("S", "k", 0), "");
}

TEST_F(PerfilTest, TheDefaultIsCutToTheBuffer)
{
    EXPECT_EQ(Le("S", "k", 2), "-");
}

TEST_F(PerfilTest, NothingIsCached)
{
    const ProfileFile perfil(Caminho());
    Poe("[S]\r\nk=1\r\n");
    EXPECT_EQ(perfil.GetPrivateProfileString("S", "k", "", 9), "1");
    Poe("[S]\r\nk=2\r\n");
    EXPECT_EQ(perfil.GetPrivateProfileString("S", "k", "", 9), "2");
}

// Writing: key "k" of section "S" becomes "v".

struct CasoEscrita {
    std::string nome;
    QByteArray antes;
    QByteArray depois;
};
void PrintTo(const CasoEscrita &caso, std::ostream *os)
{
    *os << caso.antes.toPercentEncoding("[]=; ").constData();
}
class EscritaTest : public Pasta, public testing::WithParamInterface<CasoEscrita> {};

TEST_P(EscritaTest, ChangesOneLine)
{
    Poe(GetParam().antes);
    EXPECT_TRUE(Grava("S", "k", "v"));
    EXPECT_EQ(Tira().toPercentEncoding("[]=; ").toStdString(),
              GetParam().depois.toPercentEncoding("[]=; ").toStdString());
    EXPECT_EQ(Le("S", "k"), "v");
}

INSTANTIATE_TEST_SUITE_P(
    Perfil, EscritaTest,
    testing::Values(
        CasoEscrita{"EmptyFile", "", "[S]\r\nk=v\r\n"},
        CasoEscrita{"SectionMissing", "; nota\r\n[T]\r\nk=1\r\n", "; nota\r\n[T]\r\nk=1\r\n[S]\r\nk=v\r\n"},
        CasoEscrita{"SectionMissingAndNoFinalBreak", "[T]\r\nk=1", "[T]\r\nk=1\r\n[S]\r\nk=v\r\n"},
        CasoEscrita{"SectionEmpty", "[S]\r\n[T]\r\nk=1\r\n", "[S]\r\nk=v\r\n[T]\r\nk=1\r\n"},
        CasoEscrita{"KeyMissingInTheMiddle", "[S]\r\nj=1\r\n\r\n; de T\r\n[T]\r\n",
                    "[S]\r\nj=1\r\nk=v\r\n\r\n; de T\r\n[T]\r\n"},
        CasoEscrita{"KeyReplaced", "[S]\r\nj=1\r\nk=0\r\nl=2\r\n", "[S]\r\nj=1\r\nk=v\r\nl=2\r\n"},
        CasoEscrita{"KeyKeepsItsOldSpelling", "[s]\r\n K = 0\r\n", "[s]\r\nK=v\r\n"},
        CasoEscrita{"FirstOfTwoEqualKeys", "[S]\r\nk=0\r\nk=1\r\n", "[S]\r\nk=v\r\nk=1\r\n"},
        CasoEscrita{"FirstOfTwoEqualSections", "[S]\r\nj=0\r\n[S]\r\nk=1\r\n",
                    "[S]\r\nj=0\r\nk=v\r\n[S]\r\nk=1\r\n"},
        CasoEscrita{"CommentsAndEmptyLinesStay", ";a\r\n\r\n[S]\r\n;k=9\r\n\r\nk=0\r\n\t\r\n;b\r\n",
                    ";a\r\n\r\n[S]\r\n;k=9\r\n\r\nk=v\r\n\t\r\n;b\r\n"},
        CasoEscrita{"LineWithoutEqualSignStays", "[S]\r\nk\r\n", "[S]\r\nk\r\nk=v\r\n"},
        CasoEscrita{"LineFeedsBecomePairs", "[T]\nj=1\n\n[S]\nk=0\n", "[T]\r\nj=1\r\n\r\n[S]\r\nk=v\r\n"},
        CasoEscrita{"MixedBreaks", "[S]\r\nj=1\nk=0\r\n", "[S]\r\nj=1\r\nk=v\r\n"},
        CasoEscrita{"Utf8MarkStays", "\xEF\xBB\xBF; S\xC3\xA3o\r\n[S]\r\nk=0\r\n",
                    "\xEF\xBB\xBF; S\xC3\xA3o\r\n[S]\r\nk=v\r\n"},
        CasoEscrita{"NulsStay", Bytes("a\0b\r\n[S]\r\nj=\0\r\n"), Bytes("a\0b\r\n[S]\r\nj=\0\r\nk=v\r\n")},
        CasoEscrita{"LoneReturnsStay", "a\rb\r\r\n[S]\r\nk=0\r\n", "a\rb\r\r\n[S]\r\nk=v\r\n"},
        CasoEscrita{"OtherBytesStay", "\x81\x8D\xFF\xFE=\x90\r\n[S]\r\nk=0\r\n",
                    "\x81\x8D\xFF\xFE=\x90\r\n[S]\r\nk=v\r\n"}),
    [](const auto &caso) { return caso.param.nome; });

// Values: written, and read again.

struct CasoValor {
    std::string nome;
    QString escrito;
    QByteArray linha;
    QString lido;
};
void PrintTo(const CasoValor &caso, std::ostream *os)
{
    *os << '"' << caso.escrito.toStdString() << '"';
}
class ValorTest : public Pasta, public testing::WithParamInterface<CasoValor> {};

TEST_P(ValorTest, IsStoredAndReadAgain)
{
    EXPECT_TRUE(Grava("S", "k", GetParam().escrito));
    EXPECT_EQ(Tira().toStdString(), ("[S]\r\n" + GetParam().linha + "\r\n").toStdString());
    EXPECT_EQ(Le("S", "k"), GetParam().lido.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Perfil, ValorTest,
    testing::Values(CasoValor{"Text", "Banco do Litoral", "k=Banco do Litoral", "Banco do Litoral"},
                    CasoValor{"Empty", "", "k=", ""}, CasoValor{"OneBlankOfAnEmptiedField", " ", "k= ", " "},
                    CasoValor{"SeveralBlanks", "   ", "k=   ", " "},
                    CasoValor{"BlanksAroundAreCutInReading", "  v ", "k=  v ", "v"},
                    CasoValor{"QuotesAroundAreStrippedInReading", "\"v\"", "k=\"v\"", "v"},
                    CasoValor{"EqualSigns", "a=b=", "k=a=b=", "a=b="},
                    CasoValor{"BracketsAndSemicolon", "[T];", "k=[T];", "[T];"},
                    CasoValor{"Accents", u"São Paulo €"_qs, "k=S\xE3o Paulo \x80", u"São Paulo €"_qs},
                    CasoValor{"OutsideTheCodePage", u"Δ1"_qs, "k=?1", "?1"},
                    CasoValor{"LineBreaksBecomeBlanks", "a\r\nj=b\n[T]", "k=a  j=b [T]", "a  j=b [T]"},
                    CasoValor{"NulEndsIt", QString("a") + QChar(u'\0') + "b", "k=a", "a"}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(PerfilTest, LineBreaksInNamesForgeNothing)
{
    EXPECT_FALSE(Grava("S\n[T]x", "k\r\nj", "v"));
    EXPECT_TRUE(Grava("S", "k\r\nj", "v"));
    EXPECT_EQ(Tira().toStdString(), "[S]\r\nk  j=v\r\n");
    EXPECT_EQ(Le("S", "k  j"), "v");
    EXPECT_EQ(Le("S", "j"), "-2");
}

TEST_F(PerfilTest, NamesLoseBlanksAroundAndEndAtANul)
{
    EXPECT_TRUE(Grava(" S\t", "\tk ", "v"));
    EXPECT_TRUE(Grava("S", QString("k") + QChar(u'\0') + "j", "w"));
    EXPECT_EQ(Tira().toStdString(), "[S]\r\nk=w\r\n");
    EXPECT_EQ(Le("S ", "\tk"), "w");
    EXPECT_EQ(Le(QString("S") + QChar(u'\0') + "T", "k"), "w");
}

TEST_F(PerfilTest, NamesThatCouldNotBeReadBackAreRefused)
{
    Poe("[S]\r\na=1\r\n");
    for (const QString chave : {"", "  ", "a=b", ";a", "[a]"}) {
        EXPECT_FALSE(Grava("S", chave, "v")) << chave.toStdString();
    }
    for (const QString secao : {"", " ", "S]T"}) {
        EXPECT_FALSE(Grava(secao, "k", "v")) << secao.toStdString();
    }
    EXPECT_EQ(Tira().toStdString(), "[S]\r\na=1\r\n");
}

TEST_F(PerfilTest, ANameOutsideTheCodePageIsReadBack)
{
    EXPECT_TRUE(Grava(u"Σ"_qs, u"Δ"_qs, "v"));
    EXPECT_TRUE(Grava(u"Σ"_qs, u"Δ"_qs, "w"));
    EXPECT_EQ(Tira().toStdString(), "[?]\r\n?=w\r\n");
    EXPECT_EQ(Le(u"Σ"_qs, u"Δ"_qs), "w");
}

TEST_F(PerfilTest, AUtf8FileIsWrittenInItsOwnWay)
{
    Poe("\xEF\xBB\xBF[S]\r\n");
    EXPECT_TRUE(Grava("S", "k", u"São Δ"_qs));
    EXPECT_EQ(Tira().toStdString(), "\xEF\xBB\xBF[S]\r\nk=S\xC3\xA3o \xCE\x94\r\n");
    EXPECT_EQ(Le("S", "k"), u"São Δ"_qs.toStdString());
}

TEST_F(PerfilTest, ManyKeysComeBackInTheOrderOfTheirFirstWrite)
{
    QByteArray esperado = "[Formato]\r\n";
    for (int banco = 1; banco <= 60; ++banco) {
        const QString codigo = QString::number(banco).rightJustified(3, QLatin1Char('0'));
        EXPECT_TRUE(Grava("Formato", codigo, "x"));
        EXPECT_TRUE(Grava("Formato", codigo, "n" + codigo));
        esperado += codigo.toLatin1() + "=n" + codigo.toLatin1() + "\r\n";
    }
    EXPECT_EQ(Tira().toStdString(), esperado.toStdString());
}

TEST_F(PerfilTest, AFileOfTenMegabytesIsReadAndWritten)
{
    QByteArray grande = "[T]\r\n";
    while (grande.size() < 10 * 1024 * 1024) {
        grande +=
            "chave" + QByteArray::number(grande.size()) + "=valor de uma linha comprida, sem acentos\r\n";
    }
    Poe(grande + "[S]\r\nk=0\r\n");
    EXPECT_EQ(Le("S", "k"), "0");
    EXPECT_TRUE(Grava("S", "k", "v"));
    EXPECT_EQ(Tira(), grande + "[S]\r\nk=v\r\n");
}

TEST_F(PerfilTest, OneLineOfMegabytesIsALine)
{
    const QByteArray lixo(4 * 1024 * 1024, '\0');
    Poe(lixo);
    EXPECT_EQ(Le("S", "k"), "-2");
    EXPECT_TRUE(Grava("S", "k", "v"));
    EXPECT_EQ(Tira(), lixo + "\r\n[S]\r\nk=v\r\n");
}

// Failures

/// While it lives the process is no longer root, whom no right of a file stops; folder and file go to that
/// user.
class SemSerRoot {
public:
    explicit SemSerRoot(const QString &arquivo) : m_eraRoot(geteuid() == 0)
    {
        constexpr uid_t kNinguem = 65534;
        if (!m_eraRoot)
            return;
        const QByteArray pasta = QFile::encodeName(QFileInfo(arquivo).path());
        const bool mudou = chown(pasta.constData(), kNinguem, kNinguem) == 0 &&
                           chown(QFile::encodeName(arquivo).constData(), kNinguem, kNinguem) == 0 &&
                           setresuid(kNinguem, kNinguem, 0) == 0;
        EXPECT_TRUE(mudou);
    }
    ~SemSerRoot()
    {
        if (m_eraRoot) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
    }
    SemSerRoot(const SemSerRoot &) = delete;
    SemSerRoot &operator=(const SemSerRoot &) = delete;

private:
    bool m_eraRoot;
};

TEST_F(PerfilTest, AFolderInItsPlace)
{
    ASSERT_TRUE(QDir(m_pasta.path()).mkdir("QX70.INI"));
    EXPECT_EQ(Le("S", "k"), "-2");
    EXPECT_FALSE(Grava("S", "k", "v"));
    EXPECT_TRUE(QFileInfo(Caminho()).isDir());
}

TEST_F(PerfilTest, APipeInItsPlaceIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(Caminho()).constData(), 0600), 0);
    EXPECT_EQ(Le("S", "k"), "-2");
    EXPECT_FALSE(Grava("S", "k", "v"));
    struct stat dados {};
    ASSERT_EQ(stat(QFile::encodeName(Caminho()).constData(), &dados), 0);
    EXPECT_TRUE(S_ISFIFO(dados.st_mode));
}

// A share that is away for a moment must not be taken for a file that was never there.
TEST_F(PerfilTest, ALinkThatLeadsNowhereIsNotFollowedByAWrite)
{
    ASSERT_TRUE(QFile::link(Caminho("longe.ini"), Caminho()));
    EXPECT_EQ(Le("S", "k"), "-2");
    EXPECT_FALSE(Grava("S", "k", "v"));
    EXPECT_FALSE(QFileInfo::exists(Caminho("longe.ini")));
    EXPECT_TRUE(QFileInfo(Caminho()).isSymLink());
}

TEST_F(PerfilTest, CanBeReadTellsAFileAndAPlaceForOneFromTheRest)
{
    EXPECT_TRUE(ProfileFile(Caminho()).CanBeRead()) << "none yet";
    Poe("rubbish");
    EXPECT_TRUE(ProfileFile(Caminho()).CanBeRead());
    EXPECT_FALSE(ProfileFile(m_pasta.path()).CanBeRead()) << "a folder";
    EXPECT_FALSE(ProfileFile(Caminho() + "/QX70.INI").CanBeRead()) << "inside a file";
    const SemSerRoot comum(Caminho());
    ASSERT_TRUE(QFile::setPermissions(Caminho(), QFileDevice::WriteOwner));
    EXPECT_FALSE(ProfileFile(Caminho()).CanBeRead()) << "no right to";
}

TEST_F(PerfilTest, AMissingFolder)
{
    const ProfileFile perfil(Caminho("nada/QX70.INI"));
    EXPECT_EQ(perfil.GetPrivateProfileString("S", "k", "-2", 160), "-2");
    EXPECT_FALSE(perfil.WritePrivateProfileString("S", "k", "v"));
    EXPECT_FALSE(QFileInfo::exists(Caminho("nada")));
}

TEST_F(PerfilTest, NoPathAtAll)
{
    const ProfileFile perfil{QString()};
    EXPECT_EQ(perfil.GetPrivateProfileString("S", "k", "-2", 160), "-2");
    EXPECT_FALSE(perfil.WritePrivateProfileString("S", "k", "v"));
}

TEST_F(PerfilTest, AnUnreadableFileIsNotReplaced)
{
    Poe("[S]\r\nk=0\r\n");
    const SemSerRoot comum(Caminho());
    ASSERT_TRUE(QFile::setPermissions(Caminho(), QFileDevice::WriteOwner));
    EXPECT_EQ(Le("S", "k"), "-2");
    EXPECT_FALSE(Grava("S", "k", "v"));
    ASSERT_TRUE(QFile::setPermissions(Caminho(), QFileDevice::ReadOwner | QFileDevice::WriteOwner));
    EXPECT_EQ(Le("S", "k"), "0");
}

TEST_F(PerfilTest, AReadOnlyFileIsNotReplaced)
{
    Poe("[S]\r\nk=0\r\n");
    const SemSerRoot comum(Caminho());
    ASSERT_TRUE(QFile::setPermissions(Caminho(), QFileDevice::ReadOwner));
    EXPECT_FALSE(Grava("S", "k", "v"));
    EXPECT_EQ(Le("S", "k"), "0");
}

/// While it lives no file of this process can grow beyond some bytes, as on a full disk.
class DiscoCheio {
public:
    explicit DiscoCheio(rlim_t bytes) : m_sinal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_antes);
        const rlimit limite{bytes, m_antes.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~DiscoCheio()
    {
        setrlimit(RLIMIT_FSIZE, &m_antes);
        std::signal(SIGXFSZ, m_sinal);
    }
    DiscoCheio(const DiscoCheio &) = delete;
    DiscoCheio &operator=(const DiscoCheio &) = delete;

private:
    rlimit m_antes{};
    void (*m_sinal)(int);
};

TEST_F(PerfilTest, AFullDiskLeavesTheOldFileWhole)
{
    const QByteArray antes = "[S]\r\nj=" + QByteArray(50000, 'x') + "\r\nk=0\r\n";
    Poe(antes);
    {
        const DiscoCheio cheio(20000);
        EXPECT_FALSE(Grava("S", "k", "v"));
    }
    EXPECT_EQ(Tira(), antes);
    EXPECT_EQ(QDir(m_pasta.path()).entryList(QDir::Files | QDir::Hidden), QStringList("QX70.INI"));
    EXPECT_TRUE(Grava("S", "k", "v"));
}

TEST_F(PerfilTest, AFullDiskLeavesASmallFileWholeToo)
{
    for (const int tamanho : {1, 100, 4096, 16383, 16384}) {
        const QByteArray antes = "[S]\r\nj=" + QByteArray(tamanho, 'x') + "\r\nk=0\r\n";
        Poe(antes);
        {
            const DiscoCheio cheio(tamanho / 2);
            EXPECT_FALSE(Grava("S", "k", "v")) << tamanho;
        }
        EXPECT_EQ(Tira(), antes) << tamanho;
    }
}

TEST_F(PerfilTest, TheFileIsReplacedNotWrittenInPlace)
{
    Poe("[S]\r\nk=0\r\n");
    QFile aberto(Caminho());
    ASSERT_TRUE(aberto.open(QIODevice::ReadOnly));
    EXPECT_TRUE(Grava("S", "k", "1"));
    EXPECT_EQ(aberto.readAll().toStdString(), "[S]\r\nk=0\r\n");
    EXPECT_EQ(QDir(m_pasta.path()).entryList(QDir::Files | QDir::Hidden), QStringList("QX70.INI"));
}

TEST_F(PerfilTest, PermissionsStay)
{
    Poe("[S]\r\nk=0\r\n");
    const auto so = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(Caminho(), so));
    const auto antes = QFile::permissions(Caminho());
    EXPECT_TRUE(Grava("S", "k", "1"));
    EXPECT_EQ(QFile::permissions(Caminho()), antes);
    EXPECT_TRUE(antes.testFlag(QFileDevice::ReadGroup) && !antes.testFlag(QFileDevice::ReadOther));
}

TEST_F(PerfilTest, ALinkStaysALink)
{
    Poe("[S]\r\nk=0\r\n");
    ASSERT_TRUE(QFile::link(Caminho(), Caminho("atalho.ini")));
    EXPECT_TRUE(ProfileFile(Caminho("atalho.ini")).WritePrivateProfileString("S", "k", "1"));
    EXPECT_TRUE(QFileInfo(Caminho("atalho.ini")).isSymLink());
    EXPECT_EQ(Tira().toStdString(), "[S]\r\nk=1\r\n");
}

} // namespace
