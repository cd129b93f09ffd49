// The message of the hand-over: its bytes, its limits, and what is refused.
#include "Mostra.h"
#include "plataforma/ambiente/Mensagem.h"
#include <gtest/gtest.h>

using namespace plataforma;

namespace {

const QByteArray kCabeca = QByteArray("QX7H\x01\0\0\0", 8); // the length's last byte follows

struct CasoCampos {
    std::string nome;
    Campos campos;
};
void PrintTo(const CasoCampos &caso, std::ostream *os)
{
    *os << caso.campos.size() << " fields";
}
class IdaEVoltaTeste : public testing::TestWithParam<CasoCampos> {};

struct CasoInvalido {
    std::string nome;
    QByteArray bytes;
};
void PrintTo(const CasoInvalido &caso, std::ostream *os)
{
    *os << caso.bytes.left(24).toHex(' ').toStdString();
}
class MensagemInvalidaTeste : public testing::TestWithParam<CasoInvalido> {};

} // namespace

TEST(MontaMensagem, WritesHeadCountAndEachField)
{
    EXPECT_EQ(MontaMensagem({{1, "10"}, {2, "é"}}), kCabeca + QByteArray("\x0b\x02\x01\0\x02"
                                                                         "10\x02\0\x02\xc3\xa9",
                                                                         12));
    EXPECT_EQ(MontaMensagem({}), kCabeca + QByteArray("\x01\0", 2));
}

TEST(LeMensagem, ReadsWhatAnotherBuildWrote)
{
    const Leitura leitura = LeMensagem(kCabeca + QByteArray("\x09\x01\xff\0\x05"
                                                            "A/ \xc3\xa7",
                                                            10));
    EXPECT_EQ(leitura.estado, EstadoMensagem::Completa);
    EXPECT_EQ(leitura.campos, (Campos{{255, "A/ ç"}}));
}

TEST_P(IdaEVoltaTeste, ComesBackWholeAndNoPartOfItIsTakenForTheWhole)
{
    const QByteArray bytes = MontaMensagem(GetParam().campos);
    const Leitura leitura = LeMensagem(bytes);
    EXPECT_EQ(leitura.estado, EstadoMensagem::Completa);
    EXPECT_EQ(leitura.campos, GetParam().campos);
    for (qsizetype n = 0; n < qMin<qsizetype>(bytes.size(), 300); ++n)
        EXPECT_EQ(LeMensagem(bytes.first(n)).estado, EstadoMensagem::Incompleta) << n << " bytes";
}

INSTANTIATE_TEST_SUITE_P(
    Campos, IdaEVoltaTeste,
    testing::Values(
        CasoCampos{"NoField", {}}, CasoCampos{"AnEmptyText", {{0, ""}}},
        CasoCampos{
            "SixFieldsOfACheque",
            {{0, "001"}, {1, "1.234,50"}, {2, "JOÃO & FILHOS"}, {3, "São Paulo"}, {4, "010203"}, {6, "9"}}},
        CasoCampos{"BlanksAndControlCharacters", {{2, " a\tb\n "}}},
        CasoCampos{"AByteOrderMark", {{2, QString(QChar(0xfeff)) + "x"}}},
        CasoCampos{"OutsideTheBasicPlane", {{2, QString::fromUcs4(U"\U0001F600")}}},
        CasoCampos{"TheGreatestMessage",
                   Campos(kMaxCampos, {kMaxIndiceCampo, QString(kMaxTextoCampo, QChar(0x20ac))})}),
    [](const auto &caso) { return caso.param.nome; });

TEST_P(MensagemInvalidaTeste, IsRefusedAtOnceAndForGood)
{
    EXPECT_EQ(LeMensagem(GetParam().bytes).estado, EstadoMensagem::Invalida);
    EXPECT_EQ(LeMensagem(GetParam().bytes + "more").estado, EstadoMensagem::Invalida);
    EXPECT_TRUE(LeMensagem(GetParam().bytes).campos.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Bytes, MensagemInvalidaTeste,
    testing::Values(CasoInvalido{"AnotherFirstByte", "q"}, CasoInvalido{"AnotherMark", "QX70"},
                    CasoInvalido{"AnotherVersion", "QX7H\x02"},
                    CasoInvalido{"NoBody", kCabeca + QByteArray("\0", 1)},
                    CasoInvalido{"ABodyBeyondTheLimit", QByteArray("QX7H\x01\x7f\xff\xff\xff", 9)},
                    CasoInvalido{"BytesBehindTheEnd", kCabeca + QByteArray("\x01\0\0", 3)},
                    CasoInvalido{"BytesBehindTheLastField", kCabeca + QByteArray("\x02\0\0", 3)},
                    CasoInvalido{"TooManyFields", kCabeca + QByteArray("\x34\x11", 2) + QByteArray(51, 0)},
                    CasoInvalido{"FewerFieldsThanCounted", kCabeca + QByteArray("\x04\x02\x01\0\0", 5)},
                    CasoInvalido{"ATextLongerThanTheBody", kCabeca + QByteArray("\x05\x01\x01\xff\xff.", 6)},
                    CasoInvalido{"BytesThatAreNoUtf8", kCabeca + QByteArray("\x05\x01\x01\0\x01\xe7", 6)},
                    CasoInvalido{"ANulInsideAText", kCabeca + QByteArray("\x05\x01\x01\0\x01\0", 6)},
                    CasoInvalido{"ATextBeyondTheLimit",
                                 QByteArray("QX7H\x01\0\0\x10\x05\x01\x01\x10\x01", 13) +
                                     QByteArray(kMaxTextoCampo + 1, 'a')}),
    [](const auto &caso) { return caso.param.nome; });

TEST(MontaMensagem, CutsALongTextAtTheLimitAndNeverInsideACharacter)
{
    const QString longo(kMaxTextoCampo + 100, u'x');
    EXPECT_EQ(LeMensagem(MontaMensagem({{2, longo}})).campos, (Campos{{2, QString(kMaxTextoCampo, u'x')}}));
    const QString par = QString(kMaxTextoCampo - 1, u'x') + QString::fromUcs4(U"\U0001F600");
    EXPECT_EQ(LeMensagem(MontaMensagem({{2, par}})).campos, (Campos{{2, QString(kMaxTextoCampo - 1, u'x')}}));
}

TEST(MontaMensagem, RefusesWhatCannotBeWritten)
{
    EXPECT_TRUE(MontaMensagem({{-1, "x"}}).isEmpty());
    EXPECT_TRUE(MontaMensagem({{kMaxIndiceCampo + 1, "x"}}).isEmpty());
    EXPECT_TRUE(MontaMensagem(Campos(kMaxCampos + 1, {0, "x"})).isEmpty());
}
