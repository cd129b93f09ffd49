// The base of every screen: focus moves turned into arrive and leave rules, Enter and function keys, change
// rules, and handlers from which no failure escapes.
#pragma once

#include <functional>
#include <map>
#include <QPointer>
#include <QWidget>

class QAbstractButton;
class QKeyEvent;

namespace plataforma {

class Mensagens;

/// What one control does on the screen's events. Each rule may be empty.
struct Regras {
    std::function<void()> antes; ///< first part of an arrival: runs before the leave rule of the field left
    std::function<void()> chega; ///< the rest of the arrival
    std::function<bool()> deixa; ///< leaving; false keeps the focus
    std::function<void()> muda;  ///< the text changed, by typing or by program
    std::function<void()> enter; ///< Enter pressed
    std::function<void(int)> tecla; ///< function key or arrow, by its code (Teclas.h)
    std::function<void()> clique;   ///< mouse pressed in the control, also when it has the focus
    std::function<void()> duploClique;
    bool desiste = false; ///< a button that gives up: the field left for it is not asked
};

/// A move of the focus is from one control of the screen to another: by Tab, click, mnemonic, Enter or by a
/// rule. Message boxes, menus and other programs are no moves; coming back from another screen arrives.
class Tela : public QWidget {
    Q_OBJECT
public:
    Tela(const QString &nome, Mensagens &mensagens, QWidget *pai = nullptr);
    ~Tela() override;

    /// Makes a control known to the focus rules. A button also gets Enter (one press an event, no repeat) and
    /// its mnemonic gives it the focus first. Calling again replaces the rules.
    void Registra(QWidget *controle, Regras regras = {});

    /// Moves the focus as the operator does (Enter): the leave rule may keep it. @return whether it moved
    bool Caminha(QWidget *destino);
    /// Moves the focus because a rule says so: it goes through, whatever the leave rule says. Inside a leave
    /// rule it replaces the move under way.
    void MoveFoco(QWidget *destino);
    /// Runs the Enter rule of a control, as if Enter had been pressed in it.
    void EnviaEnter(QWidget *controle);
    /// The control that has the focus as the rules see it (also while a message box or menu stands).
    [[nodiscard]] QWidget *Atual() const { return m_atual; }

    /// Runs a handler; a failure nobody caught ends it with one message box, and the program goes on.
    void Guarda(const std::function<void()> &acao);

    bool eventFilter(QObject *objeto, QEvent *evento) override;

protected:
    bool event(QEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    /// Makes it a screen beside the main one: over it, gone when it is closed, Esc closes it.
    void FicaAoLado(const QString &titulo);
    /// Takes the size that the controls ask for, in the middle of the display.
    void CentraNaTela();
    /// Whether Esc closes this screen.
    void FechaComEsc(bool fecha) { m_fechaComEsc = fecha; }

private:
    QWidget *Registrado(QWidget *controle) const;
    Regras RegrasDe(QWidget *controle) const; ///< empty ones for a control that is not registered
    void FocoMudou(QWidget *antes, QWidget *agora);
    bool Passa(QWidget *destino, bool ordenado, Qt::FocusReason razao);
    void Chega(QWidget *controle);
    void PoeFoco(QWidget *controle, Qt::FocusReason razao);
    bool TeclaPremida(QWidget *controle, QKeyEvent *evento);
    bool BotaoPremido(QAbstractButton *botao, bool ambiguo);
    bool Deixa(QWidget *origem, QPointer<QWidget> &desvio);
    bool Rato(QWidget *controle, QEvent *evento);

    Mensagens &m_mensagens;
    std::map<QWidget *, Regras> m_regras;
    QPointer<QWidget> m_atual;       ///< control that has the focus as the rules see it
    QPointer<QWidget> m_engoleRato;  ///< its press is discarded: the move to it was refused or interrupted
    QPointer<QWidget> m_engoleSolta; ///< the release of a press that was discarded
    QPointer<QWidget> m_selecionaAoSoltar;
    QPointer<QWidget> m_ordenado; ///< move ordered inside a leave rule
    Qt::FocusReason m_razao = Qt::OtherFocusReason;
    int m_identidade; ///< tells screens apart, also after one is gone
    int m_saindo = 0; ///< depth of leave rules under way
    bool m_pondoFoco = false;
    bool m_passando = false;   ///< a move is being judged: focus events meanwhile are its own
    bool m_desativada = false; ///< another window came up during the move
    bool m_fechaComEsc = false;
};

} // namespace plataforma
