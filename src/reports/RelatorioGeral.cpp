// See RelatorioGeral.h.
#include "reports/RelatorioGeral.h"

#include "reports/LinhaDoLog.h"
#include "reports/Quantia.h"

#include <QStringBuilder>

namespace reports {

namespace {

constexpr QStringView kFimLinha = u"\r\n";
constexpr QStringView kAsteriscos = u"********************************************************";
static_assert(kAsteriscos.size() == 56);

} // namespace

QString TituloDoRelatorioGeral()
{
    return u"Relatório Geral de Cheques Emitidos" % kFimLinha % kFimLinha;
}

QString BlocoDoRelatorioGeral(const ChequeDoRelatorioGeral &cheque, const std::optional<QString> &nomeDoBanco)
{
    const QString nome = nomeDoBanco.value_or(QStringLiteral("Inexistente"));
    const QString valor = EQuantia(cheque.vCh) ? TextoDoValor(cheque.vCh) : cheque.vCh;
    QString texto = u"   " % cheque.banco % u" - " % nome % u"  CH. Nº: " % cheque.nrch % kFimLinha %
                    u"Valor: " % valor % u"   Loc.: " % cheque.local % u"   Data: " % cheque.data %
                    kFimLinha % u"Fav.: " % cheque.favor % kFimLinha;
    for (const QString &comentario : cheque.comentarios)
        if (!comentario.isEmpty())
            texto += comentario % kFimLinha;
    return texto % kAsteriscos % kFimLinha;
}

} // namespace reports
