// See Instalacao.h.
#include "nucleo/Instalacao.h"

#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/perfil/ProfileFile.h"

#include <QFileInfo>

namespace nucleo {

QString FalhaDaInstalacao(const QString &caminhoApp, const QString &arquivoIni)
{
    const QFileInfo pasta(caminhoApp);
    if (!pasta.isDir()) {
        const QString falha = pasta.exists() ? QStringLiteral("O caminho \"%1\" não é uma pasta.")
                                             : QStringLiteral("A pasta \"%1\" não foi encontrada.");
        return falha.arg(caminhoApp) +
               QStringLiteral("\nOs valores iniciais serão usados e nada será gravado.\n"
                              "Verifique a pasta do programa e abra-o de novo.");
    }
    if (plataforma::ProfileFile(arquivoIni).CanBeRead())
        return {};
    const QFileInfo ini(arquivoIni);
    const QString falha = ini.exists() && !ini.isFile()
                              ? QStringLiteral("O caminho \"%1\" não é um arquivo de configuração.")
                              : QStringLiteral("O arquivo de configuração \"%1\" não pôde ser lido.");
    return falha.arg(arquivoIni) +
           QStringLiteral("\nOs valores iniciais serão usados e nada será gravado nele.\n"
                          "Verifique o arquivo e as suas permissões, e abra o programa de novo.");
}

bool AvisaFalhaDaInstalacao(Sistema &sistema)
{
    const QString falha = FalhaDaInstalacao(sistema.CaminhoApp, sistema.ArquivoIni);
    if (falha.isEmpty())
        return false;
    sistema.mensagens.MsgBox(falha, Botoes::Ok, Icone::Exclamacao);
    return true;
}

} // namespace nucleo
