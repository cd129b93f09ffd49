// See Caixas.h.
#include "apoio/Caixas.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace apoio {

Caixas::Caixas()
{
    qApp->installEventFilter(this);
}

Caixas::~Caixas()
{
    qApp->removeEventFilter(this);
}

bool Caixas::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() == QEvent::Show) {
        if (auto *caixa = qobject_cast<QMessageBox *>(objeto)) {
            const QPointer<QMessageBox> viva = caixa;
            QTimer::singleShot(0, this, [this, viva] {
                if (viva)
                    Atende(viva);
            });
        }
    }
    return QObject::eventFilter(objeto, evento);
}

void Caixas::Atende(QMessageBox *caixa)
{
    Caixa vista{caixa->text(), caixa->windowTitle(), caixa->icon(), caixa->standardButtons(),
                QMessageBox::NoButton};
    if (auto *padrao = qobject_cast<QPushButton *>(caixa->defaultButton()))
        vista.padrao = caixa->standardButton(padrao);
    m_vistas.push_back(vista);
    if (m_aoAbrir)
        std::exchange(m_aoAbrir, nullptr)(*caixa);
    if (!caixa->isVisible())
        return; // answered by then
    QAbstractButton *botao = caixa->defaultButton();
    if (!m_respostas.empty()) {
        botao = caixa->button(m_respostas.front());
        m_respostas.pop_front();
    }
    if (botao)
        QTest::mouseClick(botao, Qt::LeftButton);
    else
        caixa->reject();
}

void PrintTo(const Caixa &caixa, std::ostream *os)
{
    *os << '[' << caixa.titulo.toStdString() << "] " << caixa.texto.toStdString();
}

} // namespace apoio

QT_BEGIN_NAMESPACE
void PrintTo(const QString &texto, std::ostream *os)
{
    *os << '"' << texto.toStdString() << '"';
}
QT_END_NAMESPACE
