// The yardstick of the start: a program with one empty window of the toolkit. With the argument "texto" the
// window holds one word, so that the toolkit must look for its fonts, as for any window that can be read.
#include <QApplication>
#include <QLabel>
#include <QWidget>

int main(int quantos, char **argumentos)
{
    const QApplication qt(quantos, argumentos);
    QWidget janela;
    janela.setWindowTitle(QStringLiteral("Janela vazia"));
    janela.resize(840, 640);
    if (quantos > 1)
        new QLabel(QString::fromLocal8Bit(argumentos[1]), &janela);
    janela.show();
    return QApplication::exec();
}
