// Reading section Formato.
#include "Formatos.h"

#include "Palavras.h"

namespace simulador {

static void LeChave(const QString &linha, FormatosLidos &lidos)
{
    const qsizetype igual = linha.indexOf(QLatin1Char('='));
    if (igual < 0)
        return;
    const QString valor = linha.mid(igual + 1);
    const qsizetype comentario = valor.indexOf(QLatin1Char(';'));
    const QString codigo = CodigoDe(linha.left(igual), 3);
    const auto posicoes = LePosicoes(valor.left(comentario)); // all of it without a comment
    if (codigo.isEmpty() || !posicoes) {
        lidos.avisos << QStringLiteral(
                            "A linha \"%1\" da seção Formato não é um leiaute e foi deixada de lado.")
                            .arg(linha);
        return;
    }
    if (!lidos.bancos.contains(codigo))
        lidos.bancos.insert(codigo,
                            {comentario < 0 ? QString() : valor.mid(comentario + 1).trimmed(), *posicoes});
}

FormatosLidos LeFormatos(const QByteArray &arquivo)
{
    FormatosLidos lidos;
    bool naSecao = false;
    bool vista = false;
    for (const QString &crua : TextoDe1252(arquivo).split(QLatin1Char('\n'))) {
        const QString linha = crua.trimmed();
        if (linha.isEmpty() || linha.startsWith(QLatin1Char(';')))
            continue;
        if (linha.startsWith(QLatin1Char('['))) {
            // Of two sections of one name only the first counts.
            naSecao = !vista && linha.compare(QLatin1String("[formato]"), Qt::CaseInsensitive) == 0;
            vista = vista || naSecao;
        } else if (naSecao) {
            LeChave(linha, lidos);
        }
    }
    return lidos;
}

} // namespace simulador
