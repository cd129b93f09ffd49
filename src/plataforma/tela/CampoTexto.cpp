// See CampoTexto.h.
#include "plataforma/tela/CampoTexto.h"

#include "plataforma/basico/Texto.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QValidator>

namespace plataforma {

namespace {

// Refuses a typed text over the limit; a text set by the program does not pass through a refusal.
class Limite final : public QValidator {
public:
    Limite(int limite, QObject *pai) : QValidator(pai), m_limite(limite) {}
    State validate(QString &texto, int &) const override
    {
        return texto.size() > m_limite ? Invalid : Acceptable;
    }

private:
    int m_limite;
};

} // namespace

CampoTexto::CampoTexto(int limite, QWidget *pai) : QLineEdit(pai), m_limite(limite)
{
    if (limite > 0)
        setValidator(new Limite(limite, this));
}

void CampoTexto::keyPressEvent(QKeyEvent *evento)
{
    if (m_limite > 0 && evento->matches(QKeySequence::Paste)) {
        Cola();
        return;
    }
    QLineEdit::keyPressEvent(evento);
}

void CortaEm(QLineEdit *campo, int limite)
{
    if (Len(campo->text()) <= limite)
        return;
    const int cursor = campo->cursorPosition();
    campo->setText(Left(campo->text(), limite));
    campo->setCursorPosition(cursor);
}

void DeixaSoDigitos(QLineEdit *campo)
{
    const QString digitos = OnlyDigits(campo->text());
    if (digitos == campo->text())
        return;
    const auto antesDoCursor = OnlyDigits(campo->text().left(campo->cursorPosition())).size();
    campo->setText(digitos);
    campo->setCursorPosition(static_cast<int>(antesDoCursor));
}

// Pastes what still fits, as a box with a limit does.
void CampoTexto::Cola()
{
    const auto livre = m_limite - (text().size() - selectedText().size());
    QString colado = QGuiApplication::clipboard()->text();
    colado.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    colado = colado.section(QLatin1Char('\n'), 0, 0);
    if (livre > 0)
        insert(colado.left(livre));
}

} // namespace plataforma
