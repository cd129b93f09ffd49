// See Ordem.h.
#include "Ordem.h"

#include <algorithm>
#include <QLayout>
#include <QTest>
#include <QWidget>
#include <vector>

namespace teste {

namespace {

bool ParaOTab(const QWidget &controle)
{
    return (controle.focusPolicy() & Qt::TabFocus) && controle.isEnabled() && controle.isVisible();
}

// Rows first: an item whose middle lies within the height of the row's highest item belongs to that row.
std::vector<QLayoutItem *> PorLinhas(const QLayout &caixa)
{
    std::vector<QLayoutItem *> itens;
    for (int i = 0; i < caixa.count(); ++i) {
        if (!caixa.itemAt(i)->isEmpty())
            itens.push_back(caixa.itemAt(i));
    }
    const auto deCima = [](const QLayoutItem *a, const QLayoutItem *b) {
        return a->geometry().top() < b->geometry().top();
    };
    const auto daEsquerda = [](const QLayoutItem *a, const QLayoutItem *b) {
        return a->geometry().left() < b->geometry().left();
    };
    std::stable_sort(itens.begin(), itens.end(), deCima);
    for (auto linha = itens.begin(); linha != itens.end();) {
        const int fim = (*linha)->geometry().bottom();
        const auto proxima = std::find_if(
            linha, itens.end(), [&](const QLayoutItem *item) { return item->geometry().center().y() > fim; });
        const auto depois = proxima == linha ? linha + 1 : proxima;
        std::stable_sort(linha, depois, daEsquerda);
        linha = depois;
    }
    return itens;
}

void Le(QLayoutItem &item, QStringList &nomes)
{
    if (item.widget() && ParaOTab(*item.widget())) {
        nomes << item.widget()->objectName();
        return;
    }
    const QLayout *caixa = item.widget() ? item.widget()->layout() : item.layout();
    if (!caixa)
        return;
    for (QLayoutItem *dentro : PorLinhas(*caixa))
        Le(*dentro, nomes);
}

} // namespace

QStringList OrdemDeLeitura(const QWidget &tela)
{
    QStringList nomes;
    Le(*tela.layout(), nomes);
    return nomes;
}

QStringList VoltaDoTab(QWidget &tela)
{
    QStringList nomes = {tela.focusWidget()->objectName()};
    for (;;) {
        QTest::keyClick(tela.focusWidget(), Qt::Key_Tab);
        const QString nome = tela.focusWidget()->objectName();
        if (nome == nomes.first())
            return nomes;
        const bool repetido = nomes.contains(nome);
        nomes << nome;
        if (repetido)
            return nomes;
    }
}

QStringList APartirDe(const QStringList &lista, const QString &primeiro)
{
    const qsizetype onde = std::max<qsizetype>(lista.indexOf(primeiro), 0);
    return lista.mid(onde) + lista.mid(0, onde);
}

} // namespace teste
