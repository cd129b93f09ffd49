// The help window.
#include "app/ajuda/Ajuda.h"

#include "app/ajuda/Procura.h"
#include "app/ajuda/Topicos.h"
#include <algorithm>
#include <cmath>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

// The macro has to stand outside of any namespace.
static void LigaPaginas()
{
    Q_INIT_RESOURCE(ajuda);
}

namespace app {
namespace {

constexpr double kContrasteMinimo = 4.5; // of a text against its ground, to be readable with weak eyes

/// A colour between two of the palette; `parte` of 0 is the first, of 1 the second.
QColor Entre(const QColor &a, const QColor &b, double parte)
{
    const auto mistura = [parte](float x, float y) { return x + static_cast<float>(parte) * (y - x); };
    return QColor::fromRgbF(mistura(a.redF(), b.redF()), mistura(a.greenF(), b.greenF()),
                            mistura(a.blueF(), b.blueF()));
}

/// How bright a colour looks, 0 to 1.
double Luminancia(const QColor &cor)
{
    const auto linear = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(cor.redF()) + 0.7152 * linear(cor.greenF()) + 0.0722 * linear(cor.blueF());
}

double Contraste(const QColor &a, const QColor &b)
{
    const auto [menor, maior] = std::minmax({Luminancia(a), Luminancia(b)});
    return (maior + 0.05) / (menor + 0.05);
}

/// The theme's colour of links where it can be read on the theme's ground, otherwise one moved towards the
/// text.
QColor CorDoElo(const QPalette &paleta)
{
    const QColor fundo = paleta.color(QPalette::Base);
    const QColor texto = paleta.color(QPalette::Text);
    QColor elo = paleta.color(QPalette::Link);
    for (double parte = 0; parte < 1 && Contraste(elo, fundo) < kContrasteMinimo; parte += 0.1)
        elo = Entre(paleta.color(QPalette::Link), texto, parte);
    return elo;
}

/// The style of all pages; distances in units of the line height.
QString FolhaDeEstilo(const QPalette &paleta, int altura)
{
    const QColor fundo = paleta.color(QPalette::Base);
    const QColor texto = paleta.color(QPalette::Text);
    return QStringLiteral("a { color: %1; }"
                          "h1 { margin-top: 0px; margin-bottom: %4px; }"
                          "h2 { margin-top: %5px; margin-bottom: %6px; }"
                          "p, li, dd { margin-top: %6px; margin-bottom: %6px; }"
                          "table { border-collapse: collapse; border-style: solid; border-color: %3; "
                          "margin-top: %6px; margin-bottom: %4px; }"
                          "th { background-color: %2; text-align: left; }"
                          ".tecla { background-color: %2; font-weight: 600; }"
                          ".nota { background-color: %2; }"
                          "pre, code { background-color: %2; }")
        .arg(CorDoElo(paleta).name(), Entre(fundo, texto, 0.08).name(), Entre(fundo, texto, 0.3).name())
        .arg(altura / 2)
        .arg(altura)
        .arg(altura / 3);
}

QUrl EnderecoDaPagina(const QString &palavra)
{
    return QUrl(QStringLiteral("qrc:/ajuda/paginas/%1.html").arg(palavra));
}

/// The topic word of the page at an address.
QString PalavraDaPagina(const QUrl &endereco)
{
    return endereco.fileName().section(u'.', 0, 0);
}

} // namespace

Ajuda::Ajuda(QWidget *pai) : QWidget(pai, Qt::Window)
{
    LigaPaginas();
    setObjectName(QStringLiteral("Ajuda"));
    setWindowTitle(QStringLiteral("Ajuda - QX70 MIRA"));
    MontaControles();
    MontaIndice();
    DaTamanhoInicial();
    LigaEventos();
    LigaTeclas();
    AplicaEstilo();
}

void Ajuda::MontaControles()
{
    const auto botao = [this](const QString &nome, const QString &texto) {
        auto *b = new QPushButton(texto, this);
        b->setObjectName(nome);
        return b;
    };
    m_voltar = botao(QStringLiteral("Voltar"), QStringLiteral("&Voltar"));
    m_avancar = botao(QStringLiteral("Avancar"), QStringLiteral("&Avançar"));
    m_procurar = botao(QStringLiteral("Procurar"), QStringLiteral("Pr&ocurar..."));
    m_fechar = botao(QStringLiteral("Fechar"), QStringLiteral("&Fechar"));
    m_voltar->setEnabled(false);
    m_avancar->setEnabled(false);

    m_indice = new QListWidget(this); // before the page, since Tab goes in the order of making
    m_pagina = new QTextBrowser(this);
    m_pagina->setObjectName(QStringLiteral("Pagina"));
    m_pagina->setAccessibleName(QStringLiteral("Página da ajuda"));
    m_pagina->setOpenExternalLinks(false);
    m_pagina->setWordWrapMode(QTextOption::WordWrap); // a narrow column of a table grows to its longest word
    m_procura = new Procura(m_pagina, this);

    auto *botoes = new QHBoxLayout;
    botoes->addWidget(m_voltar);
    botoes->addWidget(m_avancar);
    botoes->addStretch(1);
    botoes->addWidget(m_procurar);
    botoes->addWidget(m_fechar);

    auto *divisor = new QSplitter(Qt::Horizontal, this);
    divisor->setChildrenCollapsible(false);
    divisor->addWidget(m_indice);
    divisor->addWidget(m_pagina);
    divisor->setStretchFactor(1, 1);

    auto *coluna = new QVBoxLayout(this);
    coluna->addLayout(botoes);
    coluna->addWidget(divisor, 1);
    coluna->addWidget(m_procura);
}

void Ajuda::MontaIndice()
{
    m_indice->setObjectName(QStringLiteral("Indice"));
    m_indice->setAccessibleName(QStringLiteral("Índice da ajuda"));
    for (const Topico &topico : Topicos())
        m_indice->addItem(topico.titulo);
    m_indice->setSpacing(fontMetrics().lineSpacing() / 8);
    m_indice->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_indice->setMinimumWidth(m_indice->sizeHintForColumn(0) +
                              2 * (m_indice->frameWidth() + m_indice->spacing()) +
                              fontMetrics().horizontalAdvance(u'M'));
}

void Ajuda::DaTamanhoInicial()
{
    const int letra = fontMetrics().averageCharWidth();
    const QSize tela = screen()->availableSize();
    const QSize largo(m_indice->minimumWidth() + 85 * letra, 34 * fontMetrics().lineSpacing());
    resize(largo.boundedTo(tela * 0.9));
}

void Ajuda::LigaEventos()
{
    connect(m_voltar, &QPushButton::clicked, m_pagina, &QTextBrowser::backward);
    connect(m_avancar, &QPushButton::clicked, m_pagina, &QTextBrowser::forward);
    connect(m_pagina, &QTextBrowser::backwardAvailable, m_voltar, &QPushButton::setEnabled);
    connect(m_pagina, &QTextBrowser::forwardAvailable, m_avancar, &QPushButton::setEnabled);
    connect(m_procurar, &QPushButton::clicked, m_procura, &Procura::Abre);
    connect(m_fechar, &QPushButton::clicked, this, &QWidget::close);
    connect(m_pagina, &QTextBrowser::sourceChanged, this, &Ajuda::PaginaMudou);
    connect(m_indice, &QListWidget::currentRowChanged, this,
            [this](int linha) { m_pagina->setSource(EnderecoDaPagina(Topicos().at(linha).palavra)); });
}

void Ajuda::LigaTeclas()
{
    const auto tecla = [this](const QKeySequence &sequencia, auto *quem, auto acao) {
        connect(new QShortcut(sequencia, this), &QShortcut::activated, quem, acao);
    };
    tecla(QKeySequence::Find, m_procura, &Procura::Abre);
    tecla(QKeySequence(Qt::Key_F3), m_procura, &Procura::Proxima);
    tecla(QKeySequence(Qt::SHIFT | Qt::Key_F3), m_procura, &Procura::Anterior);
    tecla(QKeySequence(Qt::ALT | Qt::Key_Left), m_pagina, &QTextBrowser::backward);
    tecla(QKeySequence(Qt::ALT | Qt::Key_Right), m_pagina, &QTextBrowser::forward);
}

void Ajuda::Mostra(const QString &topico)
{
    m_pagina->setSource(EnderecoDaPagina(Topicos().at(IndiceDoTopico(topico)).palavra));
    if (isMinimized())
        showNormal();
    show();
    raise();
    activateWindow();
    m_pagina->setFocus(Qt::OtherFocusReason);
}

void Ajuda::PaginaMudou(const QUrl &endereco)
{
    const QSignalBlocker silencio(m_indice);
    m_indice->setCurrentRow(IndiceDoTopico(PalavraDaPagina(endereco)));
}

void Ajuda::AplicaEstilo()
{
    m_pagina->document()->setDefaultStyleSheet(FolhaDeEstilo(palette(), fontMetrics().lineSpacing()));
    m_pagina->document()->setDocumentMargin(fontMetrics().lineSpacing());
    m_pagina->document()->setIndentWidth(1.6 * fontMetrics().lineSpacing());
}

void Ajuda::RecarregaPagina()
{
    const int onde = m_pagina->verticalScrollBar()->value();
    AplicaEstilo();
    m_pagina->reload();
    m_pagina->verticalScrollBar()->setValue(onde);
}

void Ajuda::changeEvent(QEvent *evento)
{
    QWidget::changeEvent(evento);
    const bool aparencia = evento->type() == QEvent::PaletteChange || evento->type() == QEvent::FontChange ||
                           evento->type() == QEvent::StyleChange;
    if (aparencia && m_pagina != nullptr && !m_pagina->source().isEmpty())
        RecarregaPagina();
}

void Ajuda::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evento);
}

void MostraAjuda(const QString &topico, QWidget *pai)
{
    auto *ajuda = pai->findChild<Ajuda *>(QString(), Qt::FindDirectChildrenOnly);
    if (ajuda == nullptr)
        ajuda = new Ajuda(pai);
    ajuda->Mostra(topico);
}

} // namespace app
