// Search in the page shown.
#include "app/ajuda/Procura.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>

namespace app {

Procura::Procura(QTextBrowser *pagina, QWidget *pai) : QWidget(pai), m_pagina(pagina)
{
    setObjectName(QStringLiteral("Procura"));
    MontaControles();
    connect(m_texto, &QLineEdit::textEdited, this, &Procura::Digitou);
    connect(m_proxima, &QPushButton::clicked, this, &Procura::Proxima);
    connect(m_anterior, &QPushButton::clicked, this, &Procura::Anterior);
    hide();
}

void Procura::MontaControles()
{
    auto *rotulo = new QLabel(QStringLiteral("&Procurar nesta página:"), this);
    m_texto = new QLineEdit(this);
    m_texto->setObjectName(QStringLiteral("TextoProcurado"));
    m_texto->setAccessibleName(QStringLiteral("Procurar nesta página"));
    rotulo->setBuddy(m_texto);
    m_proxima = new QPushButton(QStringLiteral("Próxi&ma"), this);
    m_proxima->setObjectName(QStringLiteral("Proxima"));
    m_anterior = new QPushButton(QStringLiteral("An&terior"), this);
    m_anterior->setObjectName(QStringLiteral("Anterior"));
    m_resultado = new QLabel(this);
    m_resultado->setObjectName(QStringLiteral("Resultado"));
    m_resultado->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("Não encontrado.")));

    auto *linha = new QHBoxLayout(this);
    linha->setContentsMargins(0, 0, 0, 0);
    linha->addWidget(rotulo);
    linha->addWidget(m_texto, 1);
    linha->addWidget(m_proxima);
    linha->addWidget(m_anterior);
    linha->addWidget(m_resultado);
}

void Procura::Abre()
{
    show();
    m_texto->setFocus(Qt::ShortcutFocusReason);
    m_texto->selectAll();
}

void Procura::Fecha()
{
    hide();
    m_pagina->setFocus(Qt::OtherFocusReason);
}

void Procura::Proxima()
{
    Acha({});
}

void Procura::Anterior()
{
    Acha(QTextDocument::FindBackward);
}

void Procura::Digitou()
{
    // From the beginning of the place found so far, so that a longer text is not sought behind it.
    QTextCursor cursor = m_pagina->textCursor();
    cursor.setPosition(cursor.selectionStart());
    m_pagina->setTextCursor(cursor);
    m_resultado->clear();
    if (!m_texto->text().isEmpty())
        Acha({});
}

void Procura::Acha(QTextDocument::FindFlags sentido)
{
    if (m_texto->text().isEmpty()) {
        Abre();
        return;
    }
    if (m_pagina->find(m_texto->text(), sentido)) {
        m_resultado->clear();
        return;
    }
    const QTextCursor antes = m_pagina->textCursor();
    QTextCursor volta(m_pagina->document());
    volta.movePosition(sentido.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
    m_pagina->setTextCursor(volta);
    const bool achou = m_pagina->find(m_texto->text(), sentido);
    if (!achou)
        m_pagina->setTextCursor(antes);
    m_resultado->setText(achou ? QString() : QStringLiteral("Não encontrado."));
}

void Procura::keyPressEvent(QKeyEvent *evento)
{
    const bool enter = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (evento->key() == Qt::Key_Escape)
        Fecha();
    else if (enter && evento->modifiers().testFlag(Qt::ShiftModifier))
        Anterior();
    else if (enter)
        Proxima();
    else
        QWidget::keyPressEvent(evento);
}

} // namespace app
