// Keys of a dialogue of the toolkit.
#pragma once

#include <QApplication>
#include <QKeyEvent>

namespace plataforma {

/// While it lives, a key held down from before answers nothing: the operator has not read the dialogue yet.
class TeclasDoDialogo final : public QObject {
public:
    TeclasDoDialogo() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        if (evento->type() != QEvent::KeyPress)
            return QObject::eventFilter(objeto, evento);
        const auto *tecla = static_cast<QKeyEvent *>(evento);
        const bool responde = tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter ||
                              tecla->key() == Qt::Key_Escape || tecla->key() == Qt::Key_Space;
        return responde && tecla->isAutoRepeat();
    }
};

} // namespace plataforma
