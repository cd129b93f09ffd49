// A process of its own for the tests of the single copy and of the windows. It tells what happens on its
// standard output, a line each, and ends when its standard input closes.
#include "plataforma/ambiente/CopiaUnica.h"
#include "plataforma/ambiente/Janelas.h"
#include <cstdio>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <QTextStream>
#include <unistd.h>

using plataforma::Campos;
using plataforma::CopiaUnica;

static void Diz(const QString &linha)
{
    std::puts(linha.toUtf8().constData());
    std::fflush(stdout);
}

static QString Texto(const Campos &campos)
{
    QString texto = QStringLiteral("recebido");
    for (const auto &[indice, valor] : campos)
        texto += QStringLiteral(" %1=%2").arg(indice).arg(valor);
    return texto;
}

/// Starts as the program does: the first copy stays and serves, a second one only says so.
static int Fica(const QString &pasta)
{
    CopiaUnica copia(pasta);
    Diz(copia.Primeira() ? QStringLiteral("primeira") : QStringLiteral("segunda"));
    if (!copia.Primeira())
        return 0;
    copia.Atende([](const Campos &campos) { Diz(Texto(campos)); });
    QSocketNotifier fim(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&fim, &QSocketNotifier::activated, [] { QCoreApplication::quit(); });
    return QCoreApplication::exec();
}

/// Hands over fields written as "number=text".
static int Entrega(const QString &pasta, const QStringList &argumentos)
{
    Campos campos;
    for (const QString &argumento : argumentos)
        campos.append({argumento.section(u'=', 0, 0).toInt(), argumento.section(u'=', 1)});
    const CopiaUnica copia(pasta);
    Diz(copia.Entrega(campos) ? QStringLiteral("entregue") : QStringLiteral("recusada"));
    return 0;
}

int main(int argc, char **argv)
{
    const QStringList argumentos(argv + 1, argv + argc);
    if (argumentos.value(0) == u"janelas") {
        const QGuiApplication app(argc, argv);
        Diz(plataforma::TitulosDasJanelas().join(u'|'));
        return 0;
    }
    const QCoreApplication app(argc, argv);
    return argumentos.value(0) == u"fica" ? Fica(argumentos.value(1))
                                          : Entrega(argumentos.value(1), argumentos.mid(2));
}
