// Dialogues of the toolkit as the operator meets them: the test works the real one.
#pragma once

#include <functional>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace apoio {

/// While it lives, each dialogue of class T that opens is given to `acao`; when that leaves it open, it is
/// cancelled. Message boxes are not meant (Caixas).
template <class T> class Dialogos final : public QObject {
public:
    explicit Dialogos(std::function<void(T &)> acao) : m_acao(std::move(acao))
    {
        qApp->installEventFilter(this);
    }
    ~Dialogos() override { qApp->removeEventFilter(this); }

    [[nodiscard]] int Vistos() const { return m_vistos; }

    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        auto *dialogo = evento->type() == QEvent::Show ? qobject_cast<T *>(objeto) : nullptr;
        if (dialogo)
            QTimer::singleShot(0, this, [this, vivo = QPointer(dialogo)] {
                if (!vivo)
                    return;
                ++m_vistos;
                m_acao(*vivo);
                if (vivo && vivo->isVisible())
                    vivo->reject();
            });
        return QObject::eventFilter(objeto, evento);
    }

private:
    std::function<void(T &)> m_acao;
    int m_vistos = 0;
};

/// A click on a standard button of the dialogue's own row.
inline void AperteNoDialogo(QDialog &dialogo, QDialogButtonBox::StandardButton botao)
{
    QTest::mouseClick(dialogo.findChild<QDialogButtonBox *>()->button(botao), Qt::LeftButton);
}

} // namespace apoio
