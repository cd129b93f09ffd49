// Controls of a screen found by their names, and keys pressed in them.
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <stdexcept>

namespace apoio {

/// The control of that objectName, such as "Text1(0)"; the test ends when the screen has none.
template <class T> T *Controle(const QWidget &tela, const QString &nome)
{
    T *controle = tela.findChild<T *>(nome);
    if (!controle)
        throw std::runtime_error("no control " + nome.toStdString());
    return controle;
}

inline QString Texto(const QWidget &tela, const QString &nome)
{
    return Controle<QLineEdit>(tela, nome)->text();
}

/// Name of the control that has the focus in the screen; also told while the screen is not the active window.
inline QString Foco(const QWidget &tela)
{
    return tela.focusWidget() ? tela.focusWidget()->objectName() : QString();
}

/// Keys go where the focus is, as from the keyboard.
inline void Digita(const QWidget &tela, const QString &texto)
{
    for (const QChar caractere : texto)
        QTest::sendKeyEvent(QTest::Click, tela.focusWidget(),
                            caractere.unicode() < 128 ? QTest::asciiToKey(caractere.toLatin1())
                                                      : Qt::Key_unknown,
                            QString(caractere), Qt::NoModifier);
}
inline void Tecla(const QWidget &tela, Qt::Key tecla, Qt::KeyboardModifiers modificador = Qt::NoModifier)
{
    QTest::keyClick(tela.focusWidget(), tecla, modificador);
}
/// Puts the focus into a control by a mouse click, as the operator would.
inline void ClicaEm(const QWidget &tela, const QString &nome)
{
    QTest::mouseClick(Controle<QWidget>(tela, nome), Qt::LeftButton);
}

} // namespace apoio
