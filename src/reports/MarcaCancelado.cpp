// See MarcaCancelado.h.
#include "reports/MarcaCancelado.h"

#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Texto.h"
#include "plataforma/jet/Dynaset.h"
#include "reports/LinhaDoLog.h"

namespace reports {

using plataforma::RuntimeError;

namespace {

// A row that another program has taken away meanwhile is current no more.
bool EAtual(const plataforma::Dynaset &log, const QString &chave)
{
    if (log.BOF() || log.AtEnd())
        return false;
    try {
        return plataforma::Trim(log.Field(QStringLiteral("Index"))) == chave;
    } catch (const RuntimeError &falha) {
        if (falha.number() != plataforma::ErrNoCurrentRecord)
            throw;
        return false;
    }
}

void Marca(plataforma::Dynaset &log)
{
    log.Edit();
    log.SetField(QStringLiteral("StCancel"), kCancelado);
    log.Update();
}

} // namespace

bool VaiParaOCheque(plataforma::Dynaset &log, const QString &chave)
{
    if (EAtual(log, chave))
        return true;
    log.FindFirst(QStringLiteral("Index='") + chave + QLatin1Char('\''));
    return !log.NoMatch();
}

bool MarcaCancelado(plataforma::Dynaset &log, const QString &chave, const QString &estado,
                    nucleo::Mensagens &mensagens)
{
    if (!VaiParaOCheque(log, chave)) {
        mensagens.MsgBox(QStringLiteral("Cheque nao registrado!"));
        return false;
    }
    if (plataforma::UCase(estado) == QLatin1String("C"))
        Marca(log);
    else
        log.Delete();
    return true;
}

} // namespace reports
