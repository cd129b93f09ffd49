// Starting of other programs.
#include "plataforma/ambiente/Programas.h"

#include "plataforma/basico/RuntimeError.h"
#include <QProcess>
#include <QStandardPaths>

namespace plataforma {
namespace {

/// The whole path of the program; empty when there is none.
QString AchaPrograma(const QString &nome, const QString &pasta)
{
    if (nome.isEmpty() || nome.contains(u'/'))
        return {};
    const QString aoLado = QStandardPaths::findExecutable(nome, {pasta});
    return aoLado.isEmpty() ? QStandardPaths::findExecutable(nome) : aoLado;
}

} // namespace

void IniciaPrograma(const QString &nome, const QString &pasta)
{
    const QString caminho = AchaPrograma(nome, pasta);
    if (caminho.isEmpty())
        throw RuntimeError(ErrFileNotFound,
                           QStringLiteral("O programa \"%1\" não foi encontrado em \"%2\" nem no "
                                          "caminho de programas do sistema.")
                               .arg(nome, pasta));
    if (!QProcess::startDetached(caminho, {}, pasta))
        throw RuntimeError(ErrInvalidCall,
                           QStringLiteral("O sistema não conseguiu executar o arquivo \"%1\". "
                                          "Verifique se é um programa para este computador.")
                               .arg(caminho));
}

} // namespace plataforma
