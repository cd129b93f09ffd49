// See Caixas.h.
#include "plataforma/tela/Caixas.h"

#include "plataforma/tela/Tela.h"

#include <algorithm>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

namespace plataforma {

namespace {

QMessageBox::Icon IconeDaCaixa(Icone icone)
{
    switch (icone) {
    case Icone::Informacao:
        return QMessageBox::Information;
    case Icone::Exclamacao:
        return QMessageBox::Warning;
    case Icone::Pare:
        return QMessageBox::Critical;
    case Icone::Pergunta:
        return QMessageBox::Question;
    case Icone::Nenhum:
        break;
    }
    return QMessageBox::NoIcon;
}

void PoeBotoes(QMessageBox &caixa, Botoes botoes)
{
    switch (botoes) {
    case Botoes::Ok:
        caixa.setStandardButtons(QMessageBox::Ok);
        caixa.setDefaultButton(QMessageBox::Ok);
        caixa.setEscapeButton(QMessageBox::Ok);
        break;
    case Botoes::OkCancelar:
        caixa.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        caixa.setDefaultButton(QMessageBox::Ok);
        caixa.setEscapeButton(QMessageBox::Cancel);
        break;
    case Botoes::SimNao:
        caixa.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        caixa.setDefaultButton(QMessageBox::Yes);
        caixa.setEscapeButton(QMessageBox::No);
        // The letter alone answers, as the clerk is used to.
        caixa.button(QMessageBox::Yes)->setText(QStringLiteral("&Sim"));
        caixa.button(QMessageBox::No)->setText(QStringLiteral("&Não"));
        break;
    }
}

// A break told as CR, LF or CR LF is one line break in the box.
QString Quebras(QString texto)
{
    return texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

constexpr qint64 kEsperaSemBarra = 1000; // ms of work that need no bar
constexpr qint64 kEntrePinturas = 100;   // ms

// The window over which a box stands: the active one, but never one that only passes by, such as the splash.
QWidget *JanelaDaCaixa()
{
    QWidget *janela = QApplication::activeWindow();
    while (janela && janela->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus))
        janela = janela->parentWidget() ? janela->parentWidget()->window() : nullptr;
    if (janela)
        return janela;
    const auto janelas = QApplication::topLevelWidgets();
    for (QWidget *outra : janelas)
        if (outra->isVisible() && outra->isWindow() &&
            !outra->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus) && qobject_cast<Tela *>(outra))
            return outra;
    return nullptr;
}

// A key held down from before answers nothing: the operator has not read the box yet. The letter of a button
// answers alone, as with Alt.
class TeclasDaCaixa final : public QObject {
public:
    explicit TeclasDaCaixa(QMessageBox &caixa) : m_caixa(caixa)
    {
        caixa.installEventFilter(this);
        const auto botoes = caixa.buttons();
        for (QAbstractButton *botao : botoes)
            botao->installEventFilter(this);
    }
    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        if (evento->type() != QEvent::KeyPress)
            return QObject::eventFilter(objeto, evento);
        const auto *tecla = static_cast<QKeyEvent *>(evento);
        return tecla->isAutoRepeat() || (tecla->modifiers() == Qt::NoModifier && Letra(tecla->key()));
    }

private:
    bool Letra(int tecla)
    {
        const auto botoes = m_caixa.buttons();
        for (QAbstractButton *botao : botoes) {
            const QKeySequence letra = botao->shortcut();
            if (!letra.isEmpty() && letra[0].key() == tecla) {
                botao->click();
                return true;
            }
        }
        return false;
    }

    QMessageBox &m_caixa;
};

// A box inside a wait shows that it can be answered.
class CursorDaCaixa {
public:
    CursorDaCaixa() : m_trocado(QGuiApplication::overrideCursor() != nullptr)
    {
        if (m_trocado)
            QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~CursorDaCaixa()
    {
        if (m_trocado)
            QGuiApplication::restoreOverrideCursor();
    }
    CursorDaCaixa(const CursorDaCaixa &) = delete;
    CursorDaCaixa &operator=(const CursorDaCaixa &) = delete;

private:
    bool m_trocado;
};

// The answer of a box that was closed by none of its agreeing buttons.
Resposta SemBotao(Botoes botoes)
{
    switch (botoes) {
    case Botoes::OkCancelar:
        return Resposta::Cancelar;
    case Botoes::SimNao:
        return Resposta::Nao;
    case Botoes::Ok:
        break;
    }
    return Resposta::Ok;
}

} // namespace

Resposta Caixas::MsgBox(const QString &texto, Botoes botoes, Icone icone, const QString &titulo)
{
    const CursorDaCaixa cursor;
    QMessageBox caixa(JanelaDaCaixa());
    caixa.setTextFormat(Qt::PlainText);
    caixa.setWindowTitle(titulo);
    caixa.setText(Quebras(texto));
    caixa.setIcon(IconeDaCaixa(icone));
    PoeBotoes(caixa, botoes);
    const TeclasDaCaixa teclas(caixa);
    switch (caixa.exec()) {
    case QMessageBox::Ok:
        return Resposta::Ok;
    case QMessageBox::Yes:
        return Resposta::Sim;
    case QMessageBox::No:
        return Resposta::Nao;
    default:
        return SemBotao(botoes);
    }
}

OcupadoDaTela::OcupadoDaTela() = default;
OcupadoDaTela::~OcupadoDaTela() = default;

void OcupadoDaTela::Comeca()
{
    if (m_nivel++ > 0)
        return;
    m_desdeOComeco.start();
    m_modalAntes = QApplication::activeModalWidget();
    // From here on a key reaches nothing: painting may already fetch the second of two presses.
    qApp->installEventFilter(this);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto janelas = QApplication::topLevelWidgets();
    for (QWidget *janela : janelas)
        if (janela->isVisible())
            janela->repaint();
    QGuiApplication::sync();
}

void OcupadoDaTela::Termina()
{
    if (--m_nivel > 0)
        return;
    m_barra.reset();
    // What the operator pressed while nothing could answer is fetched and discarded; a hand-over from another
    // copy waits.
    QApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    qApp->removeEventFilter(this);
    QGuiApplication::restoreOverrideCursor();
}

void OcupadoDaTela::Andamento(const QString &oQue, qint64 feitos, qint64 total)
{
    if (!m_barra) {
        if (m_desdeOComeco.elapsed() < kEsperaSemBarra)
            return;
        MostraBarra(oQue);
    } else if (m_desdeAPintura.elapsed() < kEntrePinturas) {
        return;
    }
    m_desdeAPintura.start();
    m_barra->setValue(total > 0 ? static_cast<int>(std::min<qint64>(feitos * 100 / total, 99)) : 0);
    // What the window system asks for meanwhile; the filter throws keys and clicks away.
    QApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
}

void OcupadoDaTela::MostraBarra(const QString &oQue)
{
    m_barra = std::make_unique<QProgressDialog>(oQue, QString(), 0, 100, JanelaDaCaixa());
    m_barra->setWindowTitle(kTituloPadrao);
    m_barra->setMinimumDuration(0);
    m_barra->setAutoReset(false);
    m_barra->setAttribute(Qt::WA_ShowWithoutActivating);
    m_barra->show();
}

bool OcupadoDaTela::eventFilter(QObject *objeto, QEvent *evento)
{
    // A box that opened all the same must be answered, and what the program closes itself is closed.
    const QWidget *modal = QApplication::activeModalWidget();
    if ((modal && modal != m_modalAntes) || (evento->type() == QEvent::Close && !evento->spontaneous()))
        return QObject::eventFilter(objeto, evento);
    switch (evento->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::Close:
    case QEvent::Timer: // a tick comes again; one that opened a box here would find nobody to answer it
        return true;
    default:
        return QObject::eventFilter(objeto, evento);
    }
}

} // namespace plataforma
