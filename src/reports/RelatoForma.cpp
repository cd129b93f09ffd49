// How Relato is laid out: the list over the whole width, the chosen cheque under it, then what can be sent
// and done, in rows that are read from left to right.
#include "reports/Relato.h"

#include "plataforma/tela/Formulario.h"
#include "plataforma/tela/Lista.h"
#include "reports/FonteFixa.h"
#include "reports/LinhaDoLog.h"

#include <array>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

namespace reports {

using plataforma::kEspaco;
using plataforma::kMargem;
using plataforma::Rotulo;

namespace {

constexpr int kEntreLinhas = 3;
constexpr int kMenosLinhas = 5; // of the list that must be seen
constexpr int kLinhas = 14;     // that are asked for
constexpr int kAcimaDoCentro = 20;

// Where a title stands over the list: at its first or last column, counted from 1.
struct Lugar {
    int coluna;
    Qt::Alignment lado;
};
constexpr std::array<Lugar, 7> kLugares = {{{1, Qt::AlignLeft},
                                            {16, Qt::AlignRight},
                                            {19, Qt::AlignLeft},
                                            {40, Qt::AlignRight},
                                            {44, Qt::AlignLeft},
                                            {55, Qt::AlignLeft},
                                            {138, Qt::AlignRight}}};
constexpr std::array<int, 4> kDivisas = {17, 23, 42, 53};

// The words of the titles, each over its column of the list, also when the list is moved sideways. The text
// of the label keeps its own blanks between them, which would put them beside the columns.
class Titulos final : public QLabel {
public:
    explicit Titulos(plataforma::Lista *lista) : QLabel(kTitulosDaLista), m_lista(lista)
    {
        setTextFormat(Qt::PlainText);
        setFont(lista->font());
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        connect(lista->horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { update(); });
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        static const QRegularExpression ENTRE(QStringLiteral(" *\\| *|  +"));
        const QStringList titulos = text().split(ENTRE, Qt::SkipEmptyParts);
        QPainter pintor(this);
        for (std::size_t i = 0; i < kLugares.size(); ++i)
            Escreve(pintor, titulos.at(static_cast<qsizetype>(i)), kLugares[i]);
        for (const int coluna : kDivisas)
            Escreve(pintor, QStringLiteral("|"), {coluna, Qt::AlignLeft});
    }

private:
    void Escreve(QPainter &pintor, const QString &titulo, const Lugar &lugar) const
    {
        // The style's own margin in front of the text of a row.
        const int margem = m_lista->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_lista) + 1;
        const int origem = m_lista->frameWidth() + margem - m_lista->horizontalScrollBar()->value();
        const auto antes = lugar.lado == Qt::AlignLeft ? lugar.coluna - 1 : lugar.coluna - titulo.size();
        const QString brancos(antes, QLatin1Char(' '));
        pintor.drawText(origem + fontMetrics().horizontalAdvance(brancos), fontMetrics().ascent(), titulo);
    }

    plataforma::Lista *m_lista;
};

// One group of options: one choice, and one stop of Tab.
QGroupBox *Opcoes(const QString &titulo, const std::vector<QRadioButton *> &opcoes)
{
    auto *quadro = new QGroupBox(titulo);
    auto *caixa = new QHBoxLayout(quadro);
    caixa->setSpacing(kEspaco);
    for (QRadioButton *opcao : opcoes)
        caixa->addWidget(opcao);
    opcoes.front()->setChecked(true);
    return quadro;
}

} // namespace

void Relato::MontaControles()
{
    auto *tudo = new QVBoxLayout(this);
    tudo->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
    tudo->setSpacing(kEspaco);
    tudo->addWidget(MontaLista(), 1);
    tudo->addWidget(MontaTotal());
    tudo->addWidget(MontaPainel());
    auto *saidas = new QHBoxLayout;
    saidas->setSpacing(kEspaco * 2);
    saidas->addWidget(MontaEnvio(), 1);
    saidas->addWidget(MontaRelatorioGeral());
    tudo->addLayout(saidas);
    tudo->addLayout(MontaComandos());
}

QWidget *Relato::MontaLista()
{
    m_list1 = new plataforma::Lista;
    m_list1->setObjectName(QStringLiteral("List1"));
    m_list1->setFont(FonteFixa());
    m_label2 = new Titulos(m_list1);
    m_label2->setObjectName(QStringLiteral("Label2"));
    m_list1->setAccessibleName(QStringLiteral("Cheques"));
    const int linha = m_list1->fontMetrics().height();
    m_list1->setMinimumHeight(kMenosLinhas * linha + 2 * m_list1->frameWidth());
    Registra(m_list1);
    connect(m_list1, &plataforma::Lista::Clicada, this, [this] { Guarda([this] { Escolhe(); }); });

    auto *moldura = new QWidget;
    auto *caixa = new QVBoxLayout(moldura);
    caixa->setContentsMargins(0, 0, 0, 0);
    caixa->setSpacing(2);
    caixa->addWidget(m_label2);
    caixa->addWidget(m_list1, 1);
    return moldura;
}

// A text of the panel beside its label; one longer than its place is cut at its end, never the screen's
// width.
QLabel *Relato::Detalhe(int indice, const QString &rotulo, int largura)
{
    auto *texto = new QLabel;
    m_text1.Poe(indice, texto);
    texto->setTextFormat(Qt::PlainText);
    texto->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    texto->setAccessibleName(rotulo);
    texto->setMinimumWidth(texto->fontMetrics().horizontalAdvance(QString(largura, QLatin1Char('0'))) + 8);
    // A long text must not push the others aside.
    texto->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return texto;
}

// One row of the panel: the first detail stretches, the others keep the width that they need.
void Relato::PoeDetalhes(QGridLayout *grade, const std::vector<DetalheDoPainel> &detalhes)
{
    auto *linha = new QHBoxLayout;
    linha->setSpacing(kEspaco);
    QLabel *primeiro = nullptr;
    for (const auto &[indice, rotulo, largura] : detalhes) {
        QLabel *texto = Detalhe(indice, rotulo, largura);
        if (primeiro) {
            linha->addWidget(Rotulo(rotulo, texto));
            texto->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
            texto->setFixedWidth(texto->minimumWidth());
        } else {
            primeiro = texto;
        }
        linha->addWidget(texto, texto == primeiro ? 1 : 0);
    }
    const int n = grade->rowCount();
    grade->addWidget(Rotulo(detalhes.front().rotulo, primeiro), n, 0);
    grade->addLayout(linha, n, 1);
}

QWidget *Relato::MontaPainel()
{
    auto *quadro = new QGroupBox(QStringLiteral("Cheque"));
    auto *grade = new QGridLayout(quadro);
    grade->setHorizontalSpacing(kEspaco);
    grade->setVerticalSpacing(kEntreLinhas);
    grade->setColumnStretch(1, 1);
    PoeDetalhes(grade, {{0, QStringLiteral("Banco:"), 24},
                        {1, QStringLiteral("Valor:"), 16},
                        {6, QStringLiteral("Nº Cheque:"), 13},
                        {7, QStringLiteral("Status:"), 2}});
    PoeDetalhes(grade, {{2, QStringLiteral("Favorecido:"), 40},
                        {3, QStringLiteral("Cidade:"), 21},
                        {4, QStringLiteral("Data:"), 9}});
    for (int i = 8; i <= 10; ++i)
        PoeDetalhes(grade, {{i, i == 8 ? QStringLiteral("Comentário:") : QString(), 40}});
    m_text1(9)->setAccessibleName(QStringLiteral("Comentário 2:"));
    m_text1(10)->setAccessibleName(QStringLiteral("Comentário 3:"));
    m_text1(1)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return quadro;
}

QWidget *Relato::MontaTotal()
{
    auto *linha = new QWidget;
    auto *caixa = new QHBoxLayout(linha);
    caixa->setContentsMargins(0, 0, 0, 0);
    caixa->setSpacing(kEspaco);
    QLabel *total = Detalhe(5, QStringLiteral("Total em cheques"), 22);
    total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    total->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QFont forte = total->font();
    forte.setBold(true);
    total->setFont(forte);
    caixa->addStretch(1);
    caixa->addWidget(Rotulo(QStringLiteral("Total em cheques"), total));
    caixa->addWidget(total);
    return linha;
}

QWidget *Relato::MontaEnvio()
{
    m_opCmd.Poe(1, new QRadioButton(QStringLiteral("Normal")));
    m_opCmd01.Poe(1, new QRadioButton(QStringLiteral("Compacto")));
    m_opCmd.Poe(0, new QRadioButton(QStringLiteral("QX70")));
    m_opCmd01.Poe(0, new QRadioButton(QStringLiteral("Arquivo")));
    m_opCmd02.Poe(0, new QRadioButton(QStringLiteral("Impressora do Win")));
    for (const auto *opcoes : {&m_opCmd, &m_opCmd01, &m_opCmd02})
        for (const auto &[i, opcao] : *opcoes)
            Registra(opcao);
    auto *envio = new QWidget;
    auto *caixa = new QHBoxLayout(envio);
    caixa->setContentsMargins(0, 0, 0, 0);
    caixa->setSpacing(kEspaco);
    caixa->addWidget(Opcoes(QStringLiteral("Forma"), {m_opCmd(1), m_opCmd01(1)}));
    caixa->addWidget(Opcoes(QStringLiteral("Saída"), {m_opCmd(0), m_opCmd01(0), m_opCmd02(0)}));
    caixa->addWidget(
        Botao(QStringLiteral("SSCommand1"), QStringLiteral("Enviar Lista"), [this] { EnviaLista(); }), 0,
        Qt::AlignBottom);
    caixa->addStretch(1);
    return envio;
}

QWidget *Relato::MontaRelatorioGeral()
{
    auto *quadro = new QGroupBox(QStringLiteral("Criar relatório Geral"));
    auto *caixa = new QHBoxLayout(quadro);
    caixa->setSpacing(kEspaco);
    auto *dica = new QLabel(QStringLiteral("Compatível com \nWord e Excel"));
    dica->setTextFormat(Qt::PlainText);
    caixa->addWidget(dica);
    caixa->addWidget(
        Botao(QStringLiteral("criar"), QStringLiteral("Criar Agora"), [this] { CriaRelatorioGeral(); }));
    return quadro;
}

QLayout *Relato::MontaComandos()
{
    auto *linha = new QHBoxLayout;
    linha->setSpacing(kEspaco);
    linha->addWidget(
        Botao(QStringLiteral("SSCommand3"), QStringLiteral("Re-Imprimir"), [this] { Seleciona(0); }));
    linha->addWidget(
        Botao(QStringLiteral("SSCommand4"), QStringLiteral("Cancelar Cheque"), [this] { Seleciona(2); }));
    linha->addWidget(
        Botao(QStringLiteral("Elimina"), QStringLiteral("Excluir Cheque"), [this] { ExcluiCheque(); }));
    linha->addStretch(1);
    linha->addWidget(Botao(QStringLiteral("SSCommand6"), QStringLiteral("Filtro"), [this] { Seleciona(1); }));
    linha->addWidget(
        Botao(QStringLiteral("SSCommand5"), QStringLiteral("Lista Completa"), [this] { ListaCompleta(); }));
    linha->addStretch(1);
    linha->addWidget(Botao(QStringLiteral("SSCommand2"), QStringLiteral("Fechar"), [this] { Seleciona(3); }));
    return linha;
}

QPushButton *Relato::Botao(const QString &nome, const QString &texto, std::function<void()> acao)
{
    auto *botao = new QPushButton(texto);
    botao->setObjectName(nome);
    Registra(botao);
    connect(botao, &QPushButton::clicked, this, [this, acao = std::move(acao)] { Guarda(acao); });
    return botao;
}

// As wide as a whole line where the display has that room; across its middle, and a little above it.
void Relato::PosicionaTela()
{
    const int linha = m_list1->fontMetrics().height();
    const int coluna =
        m_list1->fontMetrics().horizontalAdvance(QString(kTitulosDaLista.size(), QLatin1Char('0')));
    const int sobra = 2 * (kMargem + m_list1->frameWidth()) + 2 * kEspaco +
                      m_list1->verticalScrollBar()->sizeHint().width();
    const QSize pedido(coluna + sobra, sizeHint().height() - m_list1->sizeHint().height() + kLinhas * linha);
    const QScreen *visor = QGuiApplication::primaryScreen();
    const QRect area = visor ? visor->availableGeometry() : QRect(QPoint(), pedido);
    resize(pedido.expandedTo(minimumSizeHint()).boundedTo(area.size()));
    const QPoint canto = area.center() - rect().center();
    move(canto.x(), std::max(canto.y() - kAcimaDoCentro, area.top()));
}

} // namespace reports
