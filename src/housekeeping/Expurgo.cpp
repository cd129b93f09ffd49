// See Expurgo.h.
#include "housekeeping/Expurgo.h"

#include "housekeeping/RegrasDoExpurgo.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/basico/Data.h"
#include "plataforma/basico/Dir.h"
#include "plataforma/basico/RuntimeError.h"

#include <optional>
#include <QScopeGuard>

namespace housekeeping {

using namespace nucleo;
using plataforma::RuntimeError;

namespace {

// Rows deleted together: each group costs one wait for the disk.
constexpr int kLinhasPorLote = 500;
const QString kData = QStringLiteral("Data");

bool Pergunta(Mensagens &mensagens, const QString &texto)
{
    return mensagens.MsgBox(texto, Botoes::SimNao, Icone::Pergunta) == Resposta::Sim;
}

// The failure of a date that cannot be read, as one that names its row: the first with that text, since the
// walk ends there.
RuntimeError FalhaDaData(Armazem &armazem, const QString &data)
{
    armazem.AbreConsulta(QStringLiteral("Log"), SelLog);
    plataforma::Dynaset &log = armazem.Conjunto(SelLog);
    while (!log.AtEnd() && log.Field(kData) != data)
        log.MoveNext();
    const QString index = log.AtEnd() ? QString() : log.Field(QStringLiteral("Index"));
    return {plataforma::ErrTypeMismatch,
            QStringLiteral("O cheque de Index %1 tem a data \"%2\", que não pode ser lida. A exclusão de "
                           "cheques antigos parou nele.")
                .arg(index, data)};
}

/// The deletions once the operator has agreed: the screen waits, and the rows go in groups.
class Exclusao {
public:
    explicit Exclusao(Sistema &sistema)
        : m_espera(sistema.ocupado), m_ocupado(sistema.ocupado), m_lote(sistema.armazem),
          m_total(sistema.armazem.Conjunto(SelLog).RecordCount())
    {
    }
    void Apaga(plataforma::Dynaset &log)
    {
        log.Delete();
        if (++m_noLote < kLinhasPorLote)
            return;
        m_noLote = 0;
        m_lote.Fecha();
        m_lote.Abre();
    }
    void Andamento(qint64 percorridas)
    {
        m_ocupado.Andamento(QStringLiteral("Excluindo cheques antigos..."), percorridas, m_total);
    }
    void Termina() { m_lote.Fecha(); }

private:
    Espera m_espera;
    Ocupado &m_ocupado;
    Armazem::Lote m_lote;
    qint64 m_total;
    int m_noLote = 0;
};

// On purpose: asked twice with the same words, and only the second answer counts.
bool PerguntaDuasVezes(Sistema &sistema)
{
    const QString pergunta = PerguntaDosCheques(sistema.PeriodoRelExc);
    Pergunta(sistema.mensagens, pergunta);
    return Pergunta(sistema.mensagens, pergunta);
}

// Walks the log and deletes what is old, once the operator has agreed. @return a date that cannot be read,
// which ends the walk
std::optional<QString> PercorreLog(Sistema &sistema, std::optional<Exclusao> &exclusao)
{
    // Of all fields only this one: the start waits for the walk.
    sistema.armazem.AbreConsulta(QStringLiteral("Select Data From Log"), SelLog);
    plataforma::Dynaset &log = sistema.armazem.Conjunto(SelLog);
    IdadeDosCheques idade(HojeDoExpurgo(sistema.DataHoje));
    qint64 percorridas = 0;
    log.MoveFirst();
    while (!log.AtEnd()) {
        if (exclusao)
            exclusao->Andamento(percorridas);
        const QString data = log.Field(kData);
        // A row without a date has no age.
        const auto dias = data.isEmpty() ? std::optional<qint64>(0) : idade(data);
        if (!dias)
            return data;
        if (!data.isEmpty() && Venceu(*dias, sistema.PeriodoRelExc)) {
            if (exclusao) {
                exclusao->Apaga(log);
            } else if (PerguntaDuasVezes(sistema)) {
                // Others may have written while the questions stood; from here on they cannot, and the rows
                // are judged anew.
                exclusao.emplace(sistema);
                log.MoveFirst();
                percorridas = 0;
                continue;
            } else {
                return std::nullopt;
            }
        }
        log.MoveNext();
        ++percorridas;
    }
    return std::nullopt;
}

} // namespace

void ExcluiChequesAntigos(Sistema &sistema)
{
    if (sistema.armazem.AbreBanco(0, 0, 0, 1, 0) == kSemBanco) {
        sistema.mensagens.MsgBox(TextoBancoNaoEncontrado(sistema.ArquivoDados));
        return;
    }
    const auto fecha = qScopeGuard([&sistema] { sistema.armazem.FechaBanco(0, 0, 0, 1); });
    std::optional<Exclusao> exclusao;
    const auto ilegivel = PercorreLog(sistema, exclusao);
    if (exclusao)
        exclusao->Termina();
    exclusao.reset();
    if (ilegivel)
        throw FalhaDaData(sistema.armazem, *ilegivel);
}

void ExcluiCopiasAntigas(Sistema &sistema)
{
    const QDate hoje = HojeDoExpurgo(sistema.DataHoje);
    plataforma::Dir nomes(sistema.CaminhoApp + QStringLiteral("\\cop*.*"));
    std::optional<Espera> espera; // once the operator has agreed
    for (QString nome = nomes.Next(); !nome.isEmpty(); nome = nomes.Next()) {
        const auto data = DataDaCopia(nome);
        if (!data || !Venceu(plataforma::DateDiff(*data, hoje), sistema.PeriodoCopExc))
            continue;
        if (!espera && !Pergunta(sistema.mensagens, PerguntaDasCopias(sistema.PeriodoCopExc)))
            return;
        if (!espera)
            espera.emplace(sistema.ocupado);
        // By its bare name: the purge of cheques has just gone to the application folder.
        plataforma::Kill(nome);
    }
}

} // namespace housekeeping
