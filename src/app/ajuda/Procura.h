// The search bar under a page: finds a text as it is typed, forward and backward, round the end.
#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QTextBrowser;

namespace app {

class Procura final : public QWidget {
    Q_OBJECT
public:
    /// Hidden until Abre().
    explicit Procura(QTextBrowser *pagina, QWidget *pai = nullptr);

    void Abre();     ///< shows the bar, ready for typing
    void Fecha();    ///< hides it; the focus goes to the page
    void Proxima();  ///< the next place; opens the bar when nothing was sought yet
    void Anterior(); ///< the place before

protected:
    void keyPressEvent(QKeyEvent *evento) override;

private:
    void MontaControles();
    void Digitou();
    void Acha(QTextDocument::FindFlags sentido);

    QTextBrowser *m_pagina;
    QLineEdit *m_texto = nullptr;
    QPushButton *m_proxima = nullptr;
    QPushButton *m_anterior = nullptr;
    QLabel *m_resultado = nullptr;
};

} // namespace app
