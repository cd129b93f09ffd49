// Topic words and titles of the help.
#include "app/ajuda/Topicos.h"

namespace app {

const QList<Topico> &Topicos()
{
    static const QList<Topico> topicos{
        {QStringLiteral("Conteudo"), QStringLiteral("Conteúdo")},
        {QStringLiteral("PrimeirosPassos"), QStringLiteral("Primeiros passos")},
        {QStringLiteral("Cheque"), QStringLiteral("Preencher o cheque")},
        {QStringLiteral("Impressao"), QStringLiteral("Imprimir o cheque")},
        {QStringLiteral("Verso"), QStringLiteral("Verso do cheque")},
        {QStringLiteral("CamposExtras"), QStringLiteral("Campos extras")},
        {QStringLiteral("Bancos"), QStringLiteral("Bancos e posições")},
        {QStringLiteral("Relatorios"), QStringLiteral("Relatório dos cheques")},
        {QStringLiteral("Cadastros"), QStringLiteral("Favorecidos e cidades")},
        {QStringLiteral("Teclas"), QStringLiteral("Teclas")},
        {QStringLiteral("Configura"), QStringLiteral("Configurações da impressora")},
        {QStringLiteral("Configuracao"), QStringLiteral("Configuração e opções")},
        {QStringLiteral("Simulador"), QStringLiteral("Simulador")},
        {QStringLiteral("Dados"), QStringLiteral("Cuidar dos dados")},
        {QStringLiteral("Problemas"), QStringLiteral("Problemas e soluções")},
    };
    return topicos;
}

int IndiceDoTopico(const QString &palavra)
{
    const QList<Topico> &topicos = Topicos();
    for (int i = 0; i < topicos.size(); ++i) {
        if (topicos[i].palavra.compare(palavra, Qt::CaseInsensitive) == 0)
            return i;
    }
    return 0;
}

} // namespace app
