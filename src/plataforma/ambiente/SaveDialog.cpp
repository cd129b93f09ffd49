// See SaveDialog.h.
#include "plataforma/ambiente/SaveDialog.h"

#include "plataforma/ambiente/TeclasDoDialogo.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

namespace plataforma {

namespace {

const QString kFiltro = QStringLiteral("Arquivo Texto (*.txt)|*.txt|Todos os Arquivos (*.*)|*.*");

// "text|pattern|text|pattern" as the toolkit takes it. Of the last parentheses it shows nothing; here "*.*"
// is any file, also one without a point.
QStringList FiltrosDe(const QString &filtro)
{
    const QStringList partes = filtro.split(QLatin1Char('|'));
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        const QString padrao = partes[i + 1] == QLatin1String("*.*") ? QStringLiteral("*") : partes[i + 1];
        filtros << QStringLiteral("%1 (%2)").arg(partes[i], padrao);
    }
    return filtros;
}

} // namespace

QString ShowSave(const QString &pasta)
{
    QFileDialog dialogo(QApplication::activeWindow());
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setFileMode(QFileDialog::AnyFile);
    dialogo.setOption(QFileDialog::HideNameFilterDetails);
    dialogo.setNameFilters(FiltrosDe(kFiltro));
    dialogo.setDefaultSuffix(QStringLiteral("txt"));
    dialogo.setDirectory(QDir::current());
    const TeclasDoDialogo teclas;
    const bool aceito = dialogo.exec() == QDialog::Accepted;
    QDir::setCurrent(pasta);
    return aceito ? dialogo.selectedFiles().value(0) : QString();
}

} // namespace plataforma
