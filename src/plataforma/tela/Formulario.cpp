// See Formulario.h.
#include "plataforma/tela/Formulario.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace plataforma {

int LarguraPara(const QLineEdit *campo, int n)
{
    constexpr int kMoldura = 18; // frame and margins
    return campo->fontMetrics().horizontalAdvance(QString(n, QLatin1Char('0'))) + kMoldura;
}

QLabel *Rotulo(const QString &texto, QWidget *controle)
{
    auto *rotulo = new QLabel(texto);
    rotulo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    rotulo->setTextFormat(Qt::PlainText);
    controle->setAccessibleName(texto);
    return rotulo;
}

QGroupBox *Quadro(const QString &titulo, const std::vector<QWidget *> &dentro)
{
    auto *quadro = new QGroupBox(titulo);
    auto *caixa = new QVBoxLayout(quadro);
    caixa->setSpacing(kEspaco);
    for (QWidget *controle : dentro)
        caixa->addWidget(controle);
    caixa->addStretch(1);
    return quadro;
}

QHBoxLayout *LinhaDeBotoes(const Arranjo<QPushButton> &botoes)
{
    auto *linha = new QHBoxLayout;
    linha->setSpacing(kEspaco);
    linha->addStretch(1);
    for (const auto &[indice, botao] : botoes)
        linha->addWidget(botao);
    return linha;
}

} // namespace plataforma
