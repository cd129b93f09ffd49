// Fixture of the tests of the list: a window with a list in it, which notes the clicks and the texts made.
#pragma once

#include "apoio/Controles.h"
#include "plataforma/tela/Lista.h"

#include <gtest/gtest.h>
#include <QVBoxLayout>

namespace teste {

using plataforma::Lista;
using Linhas = QList<int>;

inline constexpr int MUITAS = 100000;

class ComLista : public testing::Test {
protected:
    ComLista()
    {
        auto *caixa = new QVBoxLayout(&m_janela);
        m_outro = new QLineEdit;
        m_lista = new Lista;
        caixa->addWidget(m_outro);
        caixa->addWidget(m_lista);
        m_janela.resize(300, 400);
        QObject::connect(m_lista, &Lista::Clicada, m_lista,
                         [this] { m_clicadas.append(m_lista->Corrente()); });
        QObject::connect(m_lista, &Lista::ClicadaDuasVezes, m_lista,
                         [this] { m_duplas.append(m_lista->Corrente()); });
    }
    void Mostra()
    {
        m_janela.show();
        m_janela.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_janela));
        m_lista->setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(m_lista->hasFocus());
    }
    /// Rows "00001 - linha" and on.
    void Enche(int quantas)
    {
        m_lista->Enche(quantas, [this](int linha) {
            ++m_textos;
            return QString("%1 - linha").arg(linha + 1, 5, 10, QChar('0'));
        });
    }
    void EncheCom(const QStringList &textos)
    {
        m_lista->Enche(static_cast<int>(textos.size()), [textos](int linha) { return textos[linha]; });
    }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) const
    {
        QTest::keyClick(m_lista, tecla, modificadores);
    }
    void Digita(const QString &texto) const { apoio::Digita(m_janela, texto); }
    /// Lets the time pass after which typing begins anew.
    static void EsqueceDigitado() { QApplication::setKeyboardInputInterval(0); }
    [[nodiscard]] QPoint Ponto(int linha) const
    {
        return m_lista->visualRect(m_lista->model()->index(linha, 0)).center();
    }
    [[nodiscard]] QPoint Vazio() const { return {20, m_lista->viewport()->height() - 3}; }
    void Clica(QPoint onde, Qt::KeyboardModifiers modificadores = Qt::NoModifier,
               Qt::MouseButton botao = Qt::LeftButton) const
    {
        QTest::mouseClick(m_lista->viewport(), botao, modificadores, onde);
    }
    /// What a mouse sends on two quick clicks on one place.
    void ClicaDuasVezes(QPoint onde, Qt::KeyboardModifiers modificadores = Qt::NoModifier,
                        Qt::MouseButton botao = Qt::LeftButton) const
    {
        Clica(onde, modificadores, botao);
        QTest::mouseEvent(QTest::MouseDClick, m_lista->viewport(), botao, modificadores, onde);
        QTest::mouseRelease(m_lista->viewport(), botao, modificadores, onde);
    }

    const int m_intervalo = QApplication::keyboardInputInterval();
    ~ComLista() override { QApplication::setKeyboardInputInterval(m_intervalo); }

    QWidget m_janela;
    QLineEdit *m_outro = nullptr;
    Lista *m_lista = nullptr;
    QList<int> m_clicadas;
    QList<int> m_duplas;
    int m_textos = 0;
};

} // namespace teste
