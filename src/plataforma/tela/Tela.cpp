// See Tela.h. The one place where Qt's focus events become the rules of the screens.
#include "plataforma/tela/Tela.h"

#include "plataforma/basico/Mensagens.h"
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Teclas.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcutEvent>

namespace plataforma {

namespace {

// Which screen of ours was active last; a screen that comes to the front after another one arrives at its
// control.
int g_ultimaAtiva = 0;
int g_proximaIdentidade = 1;

} // namespace

Tela::Tela(const QString &nome, Mensagens &mensagens, QWidget *pai)
    : QWidget(pai, Qt::Window), m_mensagens(mensagens), m_identidade(g_proximaIdentidade++)
{
    setObjectName(nome);
    connect(qApp, &QApplication::focusChanged, this, &Tela::FocoMudou);
}

Tela::~Tela()
{
    // The children outlive the members of this class: nothing of theirs may reach the rules any more.
    disconnect(qApp, nullptr, this, nullptr);
    for (const auto &[controle, regras] : m_regras)
        controle->disconnect(this);
}

void Tela::Registra(QWidget *controle, Regras regras)
{
    const bool novo = m_regras.count(controle) == 0;
    m_regras[controle] = std::move(regras);
    if (!novo)
        return;
    controle->installEventFilter(this);
    if (auto *area = qobject_cast<QAbstractScrollArea *>(controle))
        area->viewport()->installEventFilter(this);
    connect(controle, &QObject::destroyed, this, [this, controle] { m_regras.erase(controle); });
    const auto mudou = [this, controle] {
        const auto muda = RegrasDe(controle).muda;
        if (muda)
            Guarda(muda);
    };
    if (auto *linha = qobject_cast<QLineEdit *>(controle))
        connect(linha, &QLineEdit::textChanged, this, mudou);
    else if (auto *texto = qobject_cast<QPlainTextEdit *>(controle))
        connect(texto, &QPlainTextEdit::textChanged, this, mudou);
}

Regras Tela::RegrasDe(QWidget *controle) const
{
    const auto achado = m_regras.find(controle);
    return achado == m_regras.end() ? Regras{} : achado->second;
}

QWidget *Tela::Registrado(QWidget *controle) const
{
    while (controle && controle != this) {
        if (m_regras.count(controle))
            return controle;
        controle = controle->parentWidget();
    }
    return nullptr;
}

void Tela::Guarda(const std::function<void()> &acao)
{
    try {
        acao();
    } catch (const RuntimeError &falha) {
        if (falha.number() == ErrDialogCancelled)
            return; // the operator knows
        m_mensagens.MsgBox(QStringLiteral("Ocorreu erro %1!\n%2").arg(falha.number()).arg(falha.text()),
                           Botoes::Ok, Icone::Exclamacao);
    } catch (const std::exception &falha) {
        m_mensagens.MsgBox(
            QStringLiteral("Ocorreu erro %1!\n%2").arg(ErrInvalidCall).arg(QString::fromUtf8(falha.what())),
            Botoes::Ok, Icone::Exclamacao);
    }
}

void Tela::FocoMudou(QWidget *antes, QWidget *agora)
{
    Q_UNUSED(antes)
    if (m_pondoFoco || m_passando || !agora || agora->window() != this)
        return;
    QWidget *destino = Registrado(agora);
    if (!destino)
        return;
    const bool voltaDeOutraTela = g_ultimaAtiva != m_identidade;
    g_ultimaAtiva = m_identidade;
    if (!m_atual || m_atual == destino) {
        m_atual = destino;
        if (voltaDeOutraTela)
            Chega(destino);
        return;
    }
    Passa(destino, false, m_razao);
}

void Tela::Chega(QWidget *controle)
{
    const Regras regras = RegrasDe(controle);
    if (regras.antes)
        Guarda(regras.antes);
    if (regras.chega)
        Guarda(regras.chega);
}

void Tela::PoeFoco(QWidget *controle, Qt::FocusReason razao)
{
    const QScopedValueRollback pondo(m_pondoFoco, true);
    controle->setFocus(razao);
}

// One move of the focus. First what the arrival does to shared state, then the leave rule of the field left,
// then the rest of the arrival; a refused move gives the focus back and runs neither rule of the target.
bool Tela::Passa(QWidget *destino, bool ordenado, Qt::FocusReason razao)
{
    const QPointer<QWidget> origem = m_atual;
    const QPointer<QWidget> alvo = destino;
    if (origem == alvo) {
        PoeFoco(destino, razao);
        return true;
    }
    m_desativada = false;
    bool sai = true;
    QPointer<QWidget> desvio;
    {
        const QScopedValueRollback passando(m_passando, true);
        const Regras doDestino = RegrasDe(destino);
        if (doDestino.antes)
            Guarda(doDestino.antes);
        sai = doDestino.desiste || Deixa(origem, desvio);
    }
    if (!alvo)
        return false;
    const bool desviado = desvio && desvio != alvo && !ordenado;
    // A click whose move was refused, turned aside or interrupted by a message box presses nothing.
    if (razao == Qt::MouseFocusReason && (!sai || desviado || m_desativada))
        m_engoleRato = alvo;
    if (desviado) {
        m_atual = desvio;
        PoeFoco(desvio, Qt::OtherFocusReason);
        Chega(desvio);
        return false;
    }
    if (!sai && !ordenado) {
        if (origem)
            PoeFoco(origem, Qt::OtherFocusReason);
        return false;
    }
    m_atual = alvo;
    if (alvo)
        PoeFoco(alvo, razao);
    if (const auto chega = RegrasDe(destino).chega)
        Guarda(chega);
    return true;
}

// Runs the leave rule of a control. @return whether the focus may go; `desvio` is where the rule itself sent
// it
bool Tela::Deixa(QWidget *origem, QPointer<QWidget> &desvio)
{
    const auto achado = m_regras.find(origem);
    if (achado == m_regras.end() || !achado->second.deixa)
        return true;
    bool sai = true;
    const auto deixa = achado->second.deixa;
    ++m_saindo;
    Guarda([&] { sai = deixa(); });
    --m_saindo;
    std::swap(desvio, m_ordenado);
    m_ordenado = nullptr;
    if (desvio == origem) {
        desvio = nullptr;
        return false;
    }
    return sai;
}

bool Tela::Caminha(QWidget *destino)
{
    return Passa(destino, false, Qt::OtherFocusReason);
}

void Tela::MoveFoco(QWidget *destino)
{
    if (m_saindo > 0) {
        m_ordenado = destino;
        return;
    }
    Passa(destino, true, Qt::OtherFocusReason);
}

void Tela::EnviaEnter(QWidget *controle)
{
    if (const auto enter = RegrasDe(controle).enter)
        Guarda(enter);
}

bool Tela::eventFilter(QObject *objeto, QEvent *evento)
{
    auto *controle = qobject_cast<QWidget *>(objeto);
    const bool visor = controle && !m_regras.count(controle);
    if (visor)
        controle = Registrado(controle);
    if (!controle || (visor && !evento->isPointerEvent()))
        return QWidget::eventFilter(objeto, evento);
    switch (evento->type()) {
    case QEvent::FocusIn:
        m_razao = static_cast<QFocusEvent *>(evento)->reason();
        break;
    case QEvent::KeyPress:
        if (TeclaPremida(controle, static_cast<QKeyEvent *>(evento)))
            return true;
        break;
    case QEvent::Shortcut:
        if (auto *botao = qobject_cast<QAbstractButton *>(controle))
            return BotaoPremido(botao, static_cast<QShortcutEvent *>(evento)->isAmbiguous());
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (Rato(controle, evento))
            return true;
        break;
    default:
        break;
    }
    return QWidget::eventFilter(objeto, evento);
}

bool Tela::TeclaPremida(QWidget *controle, QKeyEvent *evento)
{
    const bool enter = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (enter) {
        if (auto *botao = qobject_cast<QPushButton *>(controle)) {
            // A key held down presses once: each press may print a cheque.
            if (!evento->isAutoRepeat() && botao->isEnabled())
                botao->click();
            return true;
        }
        if (qobject_cast<QPlainTextEdit *>(controle) && !m_regras[controle].enter)
            return false;
        if (m_regras[controle].enter)
            EnviaEnter(controle);
        return true;
    }
    const int codigo = CodigoDaTecla(evento->key());
    if (codigo != 0 && (evento->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier &&
        m_regras[controle].tecla) {
        const auto tecla = m_regras[controle].tecla;
        Guarda([&] { tecla(codigo); });
        return codigo >= 112;
    }
    return false;
}

// A mnemonic gives its button the focus before pressing it; a move refused by the field left presses nothing.
// One shared by two controls only moves the focus.
bool Tela::BotaoPremido(QAbstractButton *botao, bool ambiguo)
{
    if (!botao->isEnabled() || !botao->isVisible())
        return true;
    if (m_atual != botao && !Passa(botao, false, Qt::ShortcutFocusReason))
        return true;
    if (!ambiguo)
        botao->click();
    return true;
}

bool Tela::Rato(QWidget *controle, QEvent *evento)
{
    if (evento->type() == QEvent::MouseButtonRelease) {
        if (m_engoleSolta == controle) {
            m_engoleSolta = nullptr;
            return true;
        }
        if (m_selecionaAoSoltar == controle) {
            m_selecionaAoSoltar = nullptr;
            auto *linha = qobject_cast<QLineEdit *>(controle);
            if (linha && !linha->hasSelectedText())
                linha->selectAll();
        }
        return false;
    }
    // The release of a discarded press may never come: a box that stood over it has taken it.
    const bool descarta = m_engoleRato == controle;
    m_engoleRato = nullptr;
    m_engoleSolta = descarta ? controle : nullptr;
    if (descarta)
        return true;
    if (evento->type() == QEvent::MouseButtonDblClick) {
        if (const auto duplo = m_regras[controle].duploClique)
            Guarda(duplo);
        return false;
    }
    // The press that brought the focus would put the caret and undo the selection made on arrival.
    auto *linha = qobject_cast<QLineEdit *>(controle);
    m_selecionaAoSoltar =
        linha && linha->hasSelectedText() && m_razao == Qt::MouseFocusReason ? linha : nullptr;
    m_razao = Qt::OtherFocusReason;
    if (const auto clique = m_regras[controle].clique)
        Guarda(clique);
    return false;
}

void Tela::FicaAoLado(const QString &titulo)
{
    setWindowFlags(Qt::Dialog);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(titulo);
    FechaComEsc(true);
}

void Tela::CentraNaTela()
{
    resize(sizeHint());
    if (const QScreen *visor = QGuiApplication::primaryScreen())
        move(visor->availableGeometry().center() - rect().center());
}

bool Tela::event(QEvent *evento)
{
    if (evento->type() == QEvent::WindowDeactivate)
        m_desativada = true;
    return QWidget::event(evento);
}

void Tela::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape && m_fechaComEsc) {
        close();
        return;
    }
    QWidget::keyPressEvent(evento);
}

} // namespace plataforma
