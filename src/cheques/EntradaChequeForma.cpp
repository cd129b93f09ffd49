// How the entry form is laid out: it reads like the cheque it fills, with the functions in one column.
#include "cheques/EntradaCheque.h"

#include "plataforma/tela/CampoTexto.h"
#include "plataforma/tela/Formulario.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace cheques {

using plataforma::CampoTexto;
using plataforma::kEspaco;
using plataforma::LarguraPara;
using plataforma::Rotulo;

namespace {

constexpr int kEntreLinhas = 3;

QFont FonteFixa()
{
    return QFontDatabase::systemFont(QFontDatabase::FixedFont);
}

// The first column of labels is as wide in every block, so that the boxes stand under one another.
void AlinhaPrimeiraColuna(QGridLayout *grade)
{
    const QLabel modelo;
    grade->setColumnMinimumWidth(0,
                                 modelo.fontMetrics().horizontalAdvance(QStringLiteral("Favorecido:")) + 2);
}

} // namespace

void EntradaCheque::MontaControles()
{
    for (const int i : kCamposDoCheque)
        m_text1.Poe(i, new CampoTexto(i == CampoBanco ? 0 : LimiteDoCampo(i), this));
    auto *esquerda = new QVBoxLayout;
    esquerda->setSpacing(kEspaco);
    esquerda->addWidget(MontaDadosDoCheque());
    esquerda->addWidget(MontaExtras());
    esquerda->addWidget(MontaLinhas());
    esquerda->addStretch(1);
    auto *tudo = new QHBoxLayout(this);
    tudo->setContentsMargins(kEspaco, kEspaco, kEspaco, kEspaco);
    tudo->setSpacing(kEspaco * 2);
    tudo->addLayout(esquerda, 1);
    tudo->addWidget(MontaFuncoes());
}

QWidget *EntradaCheque::MontaDadosDoCheque()
{
    auto *quadro = new QGroupBox(QStringLiteral("Cheque"));
    auto *grade = new QGridLayout(quadro);
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEspaco);
    AlinhaPrimeiraColuna(grade);

    m_label1.Poe(6, new QLabel);
    m_label1(6)->setAccessibleName(QStringLiteral("Nome do Banco"));
    m_label1(6)->setTextFormat(Qt::PlainText);
    QFont nome = m_label1(6)->font();
    nome.setBold(true);
    m_label1(6)->setFont(nome);
    m_label1(6)->setMinimumWidth(m_label1(6)->fontMetrics().horizontalAdvance(QString(24, QLatin1Char('n'))));
    auto *titulo = new QLabel(QStringLiteral("Nome do Banco"));
    titulo->setForegroundRole(QPalette::PlaceholderText);
    auto *banco = new QVBoxLayout;
    banco->setSpacing(0);
    banco->addWidget(titulo);
    banco->addWidget(m_label1(6));

    m_text1(CampoBanco)->setFixedWidth(LarguraPara(m_text1(CampoBanco), 4));
    m_text1(CampoValor)->setAlignment(Qt::AlignRight);
    m_text1(CampoValor)->setFixedWidth(LarguraPara(m_text1(CampoValor), 16));
    m_text1(CampoData)->setFixedWidth(LarguraPara(m_text1(CampoData), 10));
    m_text1(CampoNumero)->setFixedWidth(LarguraPara(m_text1(CampoNumero), 16));

    grade->addWidget(Rotulo(QStringLiteral("Banco:"), m_text1(CampoBanco)), 0, 0);
    grade->addWidget(m_text1(CampoBanco), 0, 1);
    grade->addLayout(banco, 0, 2, 1, 2);
    grade->addWidget(Rotulo(QStringLiteral("Valor:"), m_text1(CampoValor)), 0, 4);
    grade->addWidget(m_text1(CampoValor), 0, 5);
    grade->addWidget(Rotulo(QStringLiteral("Favorecido:"), m_text1(CampoFavorecido)), 1, 0);
    grade->addWidget(m_text1(CampoFavorecido), 1, 1, 1, 5);
    grade->addWidget(Rotulo(QStringLiteral("Cidade:"), m_text1(CampoCidade)), 2, 0);
    auto *cidadeData = new QHBoxLayout;
    cidadeData->setSpacing(kEspaco);
    cidadeData->addWidget(m_text1(CampoCidade), 1);
    cidadeData->addWidget(Rotulo(QStringLiteral("Data:"), m_text1(CampoData)));
    cidadeData->addWidget(m_text1(CampoData));
    grade->addLayout(cidadeData, 2, 1, 1, 3);
    grade->addWidget(Rotulo(QStringLiteral("Nº Cheque:"), m_text1(CampoNumero)), 2, 4);
    grade->addWidget(m_text1(CampoNumero), 2, 5);
    grade->setColumnStretch(3, 1);
    return quadro;
}

QWidget *EntradaCheque::MontaExtras()
{
    auto *quadro = new QGroupBox(QStringLiteral("Campos Extras"));
    auto *grade = new QGridLayout(quadro);
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEntreLinhas);
    AlinhaPrimeiraColuna(grade);
    grade->setColumnStretch(1, 1);
    for (int i = 0; i < kCamposExtras; ++i) {
        m_txtCpo.Poe(i, new CampoTexto(0, this));
        m_txtCpo(i)->setFont(FonteFixa());
        grade->addWidget(Rotulo(QStringLiteral("Campo %1:").arg(i + 1), m_txtCpo(i)), i, 0);
        grade->addWidget(m_txtCpo(i), i, 1);
    }
    return quadro;
}

QWidget *EntradaCheque::MontaLinhas()
{
    auto *quadro = new QGroupBox(QStringLiteral("Comentários e Verso"));
    auto *grade = new QGridLayout(quadro);
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEntreLinhas);
    AlinhaPrimeiraColuna(grade);
    grade->setColumnStretch(1, 1);
    for (int i = 0; i < kLinhasDoVerso; ++i) {
        const QString texto = (i < 3 ? QStringLiteral("Cmd%1:") : QStringLiteral("Vrs%1:")).arg(i + 1);
        m_text2.Poe(i, new CampoTexto(0, this));
        m_text2(i)->setFont(FonteFixa());
        m_text2(i)->setMinimumWidth(LarguraPara(m_text2(i), kLimiteDaLinha));
        auto *rotulo = Rotulo(texto, m_text2(i));
        m_label1.Poe(i + 7, rotulo);
        grade->addWidget(rotulo, i, 0);
        grade->addWidget(m_text2(i), i, 1);
    }
    return quadro;
}

QWidget *EntradaCheque::MontaFuncoes()
{
    auto *coluna = new QWidget;
    auto *caixa = new QVBoxLayout(coluna);
    caixa->setContentsMargins(0, 0, 0, 0);
    caixa->setSpacing(kEspaco / 2);
    caixa->addWidget(new QLabel(QStringLiteral("Funções")));
    const QStringList nomes = {QStringLiteral("Imprime C&heque"), QStringLiteral("Imprime &Verso"),
                               QStringLiteral("&Relatório"),      QStringLiteral("Limpa Cheq&ue"),
                               QStringLiteral("Limpa Ver&so"),    QStringLiteral("Cheque a Pra&zo"),
                               QStringLiteral("Imprime Có&pia"),  QStringLiteral("Cheque Transferência")};
    for (int i = 0; i < nomes.size(); ++i) {
        m_opcoes.Poe(i, new QPushButton(nomes[i], this));
        caixa->addWidget(m_opcoes(i));
    }
    caixa->addSpacing(kEspaco);
    m_checkBox = new QCheckBox(QStringLiteral("Incluir no relatório"), this);
    m_checkBox->setObjectName(QStringLiteral("CheckBox"));
    caixa->addWidget(m_checkBox);
    caixa->addSpacing(kEspaco);
    caixa->addWidget(MontaFormaDaData());
    caixa->addStretch(1);
    m_colunaDasFuncoes = caixa;
    return coluna;
}

void EntradaCheque::PoeNoPeDasFuncoes(QWidget *figura)
{
    m_colunaDasFuncoes->addWidget(figura);
}

QWidget *EntradaCheque::MontaFormaDaData()
{
    auto *quadro = new QGroupBox(QStringLiteral("Formato de Data"));
    quadro->setObjectName(QStringLiteral("Frame1"));
    auto *caixa = new QVBoxLayout(quadro);
    caixa->setSpacing(kEntreLinhas);
    const auto opcao = [&](int numero, const QString &texto) {
        auto *botao = new QRadioButton(texto, this);
        botao->setObjectName(QStringLiteral("Option%1").arg(numero));
        caixa->addWidget(botao);
        return botao;
    };
    m_option1 = opcao(1, QStringLiteral("1 Digito 199_"));
    m_option2 = opcao(2, QStringLiteral("2 Digitos 20__"));
    m_option3 = opcao(3, QStringLiteral("4 Digitos ____"));
    return quadro;
}

} // namespace cheques
