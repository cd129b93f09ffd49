// See EntradaCheque.h. What goes to the device: the cheque with its extra fields and its row, and the back.
#include "cheques/EntradaCheque.h"

#include "cheques/PosicoesExtras.h"
#include "cheques/Verso.h"
#include "device/Fluxos.h"
#include "nucleo/Mensagens.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/Tela.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>

namespace cheques {

using namespace nucleo;

namespace {

const QString kInsiraODocumento = QStringLiteral("Insira o Documento.");
const QString kImpressaoDoCheque = QStringLiteral("Impressão do Cheque");
const QString kImpressaoDoVerso = QStringLiteral("Impressão do Verso");
constexpr int kPrimeiroRotuloDasLinhas = 7; // Label1

} // namespace

void EntradaCheque::ImprimeCheque()
{
    const int ok = VerificaCampos();
    if (ok == 0)
        return;
    int resultado = 1;
    ImprimeCamposExtras(resultado);
    if (resultado != 1) {
        if (m_aberturas.camposExtras)
            m_aberturas.camposExtras();
        return;
    }
    ImprimeChequeNormal(ok, resultado);
    m_tela.MoveFoco(m_text1(CampoBanco));
}

std::array<CampoExtra, kCamposExtras> EntradaCheque::LeCamposExtras() const
{
    std::array<CampoExtra, kCamposExtras> campos;
    for (int i = 0; i < kCamposExtras; ++i) {
        CampoExtra &campo = campos[static_cast<std::size_t>(i)];
        campo.linha = LePosicao(m_sistema.ini, i, LadoLinha);
        campo.coluna = LePosicao(m_sistema.ini, i, LadoColuna);
        campo.texto = m_txtCpo(i)->text();
    }
    return campos;
}

void EntradaCheque::ImprimeCamposExtras(int &resultado)
{
    resultado = 1;
    const auto campos = LeCamposExtras();
    if (const auto falha = VerificaCamposExtras(campos)) {
        m_sistema.mensagens.MsgBox(*falha, Botoes::Ok, Icone::Nenhum, kImpressaoDoCheque);
        resultado = 2;
        return;
    }
    // Before the port is opened: the library keeps the fields for the next cheque.
    for (int i = 0; i < kCamposExtras; ++i) {
        const CampoExtra &campo = campos[static_cast<std::size_t>(i)];
        if (!campo.texto.isEmpty())
            m_sistema.impressora.ImprimeCampoX(i + 1, campo.linha, campo.coluna, campo.texto);
    }
}

void EntradaCheque::ImprimeChequeNormal(int ok, int &resultado)
{
    m_sistema.ComentarioLinha1 = m_text2(0)->text();
    m_sistema.ComentarioLinha2 = m_text2(1)->text();
    m_sistema.ComentarioLinha3 = m_text2(2)->text();
    // What is printed and logged is what the operator confirms, whatever reaches the fields meanwhile.
    TextosDoCheque cheque = Textos();
    if (m_sistema.mensagens.MsgBox(kInsiraODocumento, Botoes::OkCancelar, Icone::Informacao,
                                   kImpressaoDoCheque) != Resposta::Ok)
        return;
    if (cheque.favorecido.isEmpty()) {
        cheque.favorecido = QStringLiteral(".");
        // A payee that was handed over while the box stood is for the next cheque.
        if (m_text1(CampoFavorecido)->text().isEmpty())
            m_text1(CampoFavorecido)->setText(cheque.favorecido);
    }
    {
        const Espera espera(m_sistema.ocupado);
        resultado = device::EnviaChequeNormal(MontaTextosDoCheque(cheque), m_sistema.PortaSerial,
                                              m_sistema.impressora);
    }
    if (resultado == 1 && IncluiNoRelatorio())
        // A row that cannot be written is told, and the focus leaves the button all the same.
        m_tela.Guarda([this, &cheque] { GravaLog(cheque); });
    // On purpose: kept in its place, though from here the check has always passed.
    else if (resultado == 1 && ok != 1)
        m_sistema.impressora.CancelaRel(QStringLiteral("U"));
    else if (resultado != 1)
        m_sistema.mensagens.MsgBox(QStringLiteral("Problemas com a impressao do cheque"), Botoes::Ok,
                                   Icone::Exclamacao, TituloDaFalha(resultado));
}

void EntradaCheque::GravaLog(const TextosDoCheque &cheque)
{
    if (m_sistema.armazem.AbreBanco(0, 0, 0, 1, 0) == kSemBanco)
        return;
    const auto fecha = qScopeGuard([this] { m_sistema.armazem.FechaBanco(0, 0, 0, 1); });
    plataforma::Dynaset &log = m_sistema.armazem.Conjunto(SelLog);
    const QString index = ProximoIndex(log);
    log.AddNew();
    for (const auto &[campo, valor] : MontaLinhaDoLog(cheque, index))
        log.SetField(campo, valor);
    log.Update();
}

// The back

void EntradaCheque::ImprimeVerso()
{
    if (m_sistema.mensagens.MsgBox(kInsiraODocumento, Botoes::OkCancelar, Icone::Informacao,
                                   kImpressaoDoVerso) == Resposta::Ok)
        // A failure that nobody foresaw is told, and the focus goes to the lines all the same.
        m_tela.Guarda([this] { EnviaVerso(); });
    // On purpose: as with any arrival at the lines, a field of the cheque that has the focus, as it may when
    // the menu was used, is discarded.
    m_tela.MoveFoco(m_text2(0));
}

void EntradaCheque::EnviaVerso()
{
    const Espera espera(m_sistema.ocupado);
    const auto linhas = Textos().linhas;
    TextoDoVerso verso;
    bool segue = true;
    for (int i = 0; i < kLinhasDoVerso && segue; ++i) {
        MarcaRotuloDaLinha(i, true);
        segue = PoeLinhaDoVerso(linhas, i, verso);
        MarcaRotuloDaLinha(i, false);
    }
    if (!verso.texto.isEmpty())
        device::EnviaFormatado(verso.texto, verso.modo, m_sistema.PortaSerial, m_sistema.impressora,
                               m_sistema.mensagens);
}

// Red while the line is taken; painted at once, since nothing else is until the whole text is out.
void EntradaCheque::MarcaRotuloDaLinha(int i, bool emUso)
{
    QLabel *rotulo = m_label1(i + kPrimeiroRotuloDasLinhas);
    QPalette paleta;
    if (emUso)
        paleta.setColor(QPalette::WindowText, Qt::red);
    rotulo->setPalette(paleta);
    rotulo->repaint();
}

} // namespace cheques
