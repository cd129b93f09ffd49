// What Relato sends away: the report of the list to device, file or system printer, and the general report.
#include "reports/Relato.h"

#include "nucleo/Mensagens.h"
#include "nucleo/RelatoDeErro.h"
#include "nucleo/Sistema.h"
#include "plataforma/ambiente/BinaryFile.h"
#include "plataforma/ambiente/Printer.h"
#include "plataforma/ambiente/SaveDialog.h"
#include "plataforma/jet/Dynaset.h"
#include "plataforma/tela/Lista.h"
#include "reports/NoDispositivo.h"
#include "reports/Relatorio.h"
#include "reports/RelatorioGeral.h"

#include <map>
#include <QFileInfo>
#include <QRadioButton>

namespace reports {

using namespace nucleo;

namespace {

// The names of the banks by their codes; of two rows with one code the first counts.
class NomesDosBancos {
public:
    explicit NomesDosBancos(Armazem &armazem)
    {
        armazem.BuscaPorCodigo(QString(), SelBancos);
        const plataforma::Rows bancos =
            armazem.Conjunto(SelBancos).GetRows({QStringLiteral("Codigo"), QStringLiteral("Nome")});
        for (qsizetype i = 0; i < bancos.Count(); ++i)
            m_nomes.emplace(bancos.Text(i, 0).toLower(), bancos.Text(i, 1));
    }
    [[nodiscard]] std::optional<QString> De(const QString &codigo) const
    {
        const auto achado = m_nomes.find(codigo.toLower());
        return achado == m_nomes.end() ? std::nullopt : std::optional(achado->second);
    }

private:
    std::map<QString, QString> m_nomes;
};

} // namespace

// The report of the list

void Relato::EnviaLista()
{
    if (m_list1->Quantas() == 0) {
        m_sistema.mensagens.MsgBox(
            QStringLiteral("Não é possivel enviar relatório!\rNenhum registro encontrado!"), Botoes::Ok,
            Icone::Nenhum, QStringLiteral("    Relatório sem registros"));
        return;
    }
    Pedido pedido;
    pedido.forma = m_opCmd01(1)->isChecked() ? Forma::Compacto : Forma::Normal;
    pedido.destino = m_opCmd02(0)->isChecked()   ? Destino::Impressora
                     : m_opCmd01(0)->isChecked() ? Destino::Arquivo
                                                 : Destino::Dispositivo;
    pedido.hoje = m_sistema.DataHoje;
    pedido.chequesPorPagina = m_sistema.NumChkPgRel;
    EnviaComRelato(
        [&] {
            switch (pedido.destino) {
            case Destino::Dispositivo:
                return EnviaAoDispositivo(pedido);
            case Destino::Arquivo:
                return EnviaAoArquivo(pedido);
            case Destino::Impressora:
                return EnviaAImpressora(pedido);
            }
        },
        m_sistema.mensagens);
}

Relatorio Relato::RelatorioDaLista(const Pedido &pedido) const
{
    return {pedido, m_list1->Quantas(),
            [lista = m_list1](qint64 i) { return lista->TextoDe(static_cast<int>(i)); }};
}

void Relato::EnviaAoDispositivo(const Pedido &pedido)
{
    if (!PedeDocumento({QStringLiteral("Insira o Documento."), QStringLiteral("Impressão do Cheque")},
                       m_sistema.mensagens))
        return;
    Relatorio relatorio = RelatorioDaLista(pedido);
    EnviaPaginas(relatorio,
                 {QStringLiteral("Insira novo Documento..."), QStringLiteral("Impressão de Relatório")},
                 m_sistema);
}

// The name of a text file that is none of the program's own: the first bytes of a store written over are the
// end of it.
QString Relato::PedeArquivo()
{
    const QString nome = plataforma::ShowSave(m_sistema.CaminhoApp);
    const auto mesmo = [&nome](const QString &proprio) { return QFileInfo(nome) == QFileInfo(proprio); };
    if (nome.isEmpty() || (!mesmo(m_sistema.ArquivoIni) && !mesmo(m_sistema.armazem.Caminho())))
        return nome;
    m_sistema.mensagens.MsgBox(QStringLiteral("%1 é um arquivo do próprio programa. Escolha outro nome.")
                                   .arg(QFileInfo(nome).fileName()),
                               Botoes::Ok, Icone::Exclamacao);
    return {};
}

void Relato::EnviaAoArquivo(const Pedido &pedido)
{
    const QString nome = PedeArquivo();
    if (nome.isEmpty())
        return;
    plataforma::BinaryFile arquivo(nome);
    PercorrePaginas(pedido, [&arquivo](const QString &pagina, bool) { arquivo.Put(pagina); });
    arquivo.Close();
}

void Relato::EnviaAImpressora(const Pedido &pedido)
{
    plataforma::Printer impressora(windowTitle());
    impressora.ShowPrinter();
    PercorrePaginas(pedido, [&impressora](const QString &pagina, bool ultima) {
        impressora.Print(pagina);
        if (!ultima)
            impressora.NewPage();
    });
    const Espera espera(m_sistema.ocupado);
    impressora.EndDoc();
}

// All pages without a question between them; the way to the last one is shown.
void Relato::PercorrePaginas(const Pedido &pedido, const std::function<void(const QString &, bool)> &envia)
{
    const Espera espera(m_sistema.ocupado);
    const int quantas = m_list1->Quantas();
    Relatorio relatorio(pedido, quantas, [this, quantas](qint64 i) {
        m_sistema.ocupado.Andamento(QStringLiteral("Criando o relatório..."), i, quantas);
        return m_list1->TextoDe(static_cast<int>(i));
    });
    while (const auto pagina = relatorio.ProximaPagina())
        envia(*pagina, relatorio.Terminou());
}

// The general report

void Relato::CriaRelatorioGeral()
{
    EnviaComRelato(
        [this] {
            const QString nome = PedeArquivo();
            if (nome.isEmpty() || !AbreLog())
                return;
            {
                const Espera espera(m_sistema.ocupado);
                plataforma::BinaryFile arquivo(nome);
                arquivo.Put(TextoDoRelatorioGeral());
                arquivo.Close();
            }
            m_sistema.mensagens.MsgBox(
                QStringLiteral("O Relatório Foi Criado Com Sucesso, Poderá Abri-lo no Word ou Excel"));
        },
        m_sistema.mensagens);
}

QString Relato::TextoDoRelatorioGeral()
{
    const NomesDosBancos bancos(m_sistema.armazem);
    m_sistema.armazem.FechaBanco(1, 0, 0, 0);
    const plataforma::Rows log = m_sistema.armazem.Conjunto(SelLog).GetRows(
        {QStringLiteral("Banco"), QStringLiteral("NRCH"), QStringLiteral("V_CH"), QStringLiteral("Local"),
         QStringLiteral("Data"), QStringLiteral("Favor"), QStringLiteral("Comentario"),
         QStringLiteral("Comentario1"), QStringLiteral("Comentario2")});
    QString texto = TituloDoRelatorioGeral();
    for (qsizetype i = 0; i < log.Count(); ++i) {
        m_sistema.ocupado.Andamento(QStringLiteral("Criando o relatório..."), i, log.Count());
        const auto campo = [&log, i](int coluna) { return log.Text(i, coluna); };
        const ChequeDoRelatorioGeral cheque{
            campo(0), campo(1), campo(2), campo(3), campo(4), campo(5), {campo(6), campo(7), campo(8)}};
        texto += BlocoDoRelatorioGeral(cheque, bancos.De(cheque.banco));
    }
    return texto;
}

} // namespace reports
