// The device's way through an event: fault in force, order carried out, answer composed.
#include "Dispositivo.h"

#include <utility>

#include "Palavras.h"
#include "qx7032/Argumentos.h"
#include "qx7032/resultados.h"

namespace simulador {

using qx7032::Evento;
using qx7032::Quadro;

namespace {

bool Trava1(const Quadro &quadro)
{
    qx7032::LeitorDeArgumentos leitor(quadro.carga);
    const auto trava = leitor.Numero();
    return quadro.tipo == 'T' && leitor.Terminou() && trava == 1;
}

bool DeLinha(TipoDeFalha tipo)
{
    return tipo == TipoDeFalha::Silencio || tipo == TipoDeFalha::Lixo || tipo == TipoDeFalha::Nak;
}

/// Neither an acknowledgement nor the beginning of a frame.
const QByteArray kLixo = QByteArrayLiteral("\x7F\x55\xAA#?!\xFE\xFE\x00\x55");

QByteArray Bytes(const std::string &bytes)
{
    return QByteArray::fromStdString(bytes);
}

QByteArray UmByte(char byte)
{
    return QByteArray(1, byte);
}

} // namespace

bool Dispositivo::PedeDocumento(const Evento &evento) const
{
    const bool ficaSemEfeito = DeLinha(m_falha.tipo) || m_falha.tipo == TipoDeFalha::SemDocumento ||
                               m_falha.tipo == TipoDeFalha::FimDePapel;
    if (evento.tipo != Evento::Tipo::Quadro || ficaSemEfeito)
        return false;
    const char tipo = evento.quadro.tipo;
    return tipo == 'C' || (tipo == 'F' && !m_travado) || Trava1(evento.quadro);
}

Reacao Dispositivo::Recebe(const Evento &evento, bool haDocumento)
{
    Reacao reacao;
    switch (evento.tipo) {
    case Evento::Tipo::Quadro:
        return RecebeQuadro(evento.quadro, haDocumento);
    case Evento::Tipo::QuadroDanificado:
        m_extras.clear();
        reacao.imediata = UmByte(qx7032::kNaoRecebido);
        break;
    case Evento::Tipo::Linha:
        RecebeTexto(Bytes(evento.texto) + "\r\n", reacao);
        break;
    case Evento::Tipo::LinhaInacabada:
    case Evento::Tipo::ComandoDesconhecido:
        RecebeTexto(Bytes(evento.texto), reacao);
        break;
    case Evento::Tipo::DigitosDoAno:
        m_memoria.digitosDoAno = evento.digitos;
        reacao.memoriaMudou = true;
        reacao.comandoAno = evento.digitos;
        break;
    case Evento::Tipo::Inversao:
        m_folha.Inverte();
        break;
    }
    return reacao;
}

Reacao Dispositivo::RecebeQuadro(const Quadro &quadro, bool haDocumento)
{
    // A held document ends where the next one begins, and uses its fault up before the next one meets it.
    Falha falha = m_falha;
    if (m_travado && (quadro.tipo == 'C' || Trava1(quadro)))
        falha.Gasta();

    Reacao reacao;
    if (!DeLinha(falha.tipo)) {
        ExecutaQuadro(quadro, falha.tipo, haDocumento, reacao);
        return reacao;
    }
    if (falha.tipo == TipoDeFalha::Lixo)
        reacao.imediata = kLixo;
    else if (falha.tipo == TipoDeFalha::Nak)
        reacao.imediata = UmByte(qx7032::kNaoRecebido);
    m_extras.clear();
    if (quadro.tipo == 'C' || (quadro.tipo == 'F' && !m_travado))
        m_falha.Gasta();
    return reacao;
}

void Dispositivo::ExecutaQuadro(const Quadro &quadro, TipoDeFalha falha, bool haDocumento, Reacao &reacao)
{
    const bool sobrePreso =
        m_travado && quadro.tipo == 'F'; // printed on the document held, whatever the slot has
    int faltaDePapel = haDocumento || sobrePreso ? 0 : QX7032_SEM_DOCUMENTO;
    if (falha == TipoDeFalha::SemDocumento)
        faltaDePapel = QX7032_SEM_DOCUMENTO;
    else if (falha == TipoDeFalha::FimDePapel)
        faltaDePapel = QX7032_FIM_DE_PAPEL;

    const bool imprime = quadro.tipo == 'C' || quadro.tipo == 'F';
    const bool foraDeTrava = quadro.tipo == 'C' || (quadro.tipo == 'F' && !m_travado);
    reacao.imediata = UmByte(qx7032::kRecebido);
    reacao.resultado = Executa(quadro, faltaDePapel, reacao);
    if (falha == TipoDeFalha::ImprimeEErra && imprime && reacao.resultado == QX7032_SUCESSO)
        reacao.resultado = QX7032_OUTRA_FALHA;
    reacao.final =
        Bytes(qx7032::CodificaResultado(quadro.sequencia, static_cast<std::int16_t>(reacao.resultado)));
    reacao.lenta = falha == TipoDeFalha::Lenta;
    if (falha == TipoDeFalha::SemFim) {
        reacao.final.clear();
        reacao.resultado = 0;
    } else if (falha == TipoDeFalha::Queda) {
        reacao.final.chop(reacao.final.size() / 2);
        reacao.resultado = 0;
        reacao.queda = true;
        if (m_travado)
            SoltaDocumento(reacao); // uses the fault up
        else if (!foraDeTrava)
            m_falha.Gasta();
    }
    if (foraDeTrava)
        m_falha.Gasta();
}

int Dispositivo::Executa(const Quadro &quadro, int faltaDePapel, Reacao &reacao)
{
    ConfereExtras(quadro);
    switch (quadro.tipo) {
    case 'T':
        return Trava(quadro, faltaDePapel, reacao);
    case 'F':
        return Formata(quadro, faltaDePapel, reacao);
    case 'C':
        return ImprimeCheque(quadro, faltaDePapel, reacao);
    case 'X':
        return GuardaExtra(quadro, reacao);
    case 'B':
        return IncluiBanco(quadro, reacao);
    case 'I':
        return IncluiFavorecido(quadro, reacao);
    case 'E':
        return ExcluiFavorecido(quadro, reacao);
    case 'R':
        return CancelaRel(quadro, reacao);
    case 'M':
        return AlteraMoeda(quadro, reacao);
    case 'Z':
        return ZeraConfig(quadro, reacao);
    default:
        reacao.aviso = QStringLiteral("Ordem desconhecida.");
        return QX7032_OUTRA_FALHA;
    }
}

void Dispositivo::SoltaDocumento(Reacao &reacao)
{
    std::vector<Documento> folhas = m_folha.Tira();
    reacao.documentos.insert(reacao.documentos.end(), std::make_move_iterator(folhas.begin()),
                             std::make_move_iterator(folhas.end()));
    m_travado = false;
    m_recusaDaTrava = 0;
    m_falha.Gasta();
}

std::vector<Documento> Dispositivo::Encerra()
{
    m_travado = false;
    return m_folha.Tira();
}

void Dispositivo::RecebeTexto(const QByteArray &bytes, Reacao &reacao)
{
    if (m_travado && m_recusaDaTrava == 0)
        m_folha.AcrescentaCru(bytes);
    else
        reacao.aviso =
            QStringLiteral("Texto recebido sem documento preso: \"%1\".").arg(TextoDe850(bytes).trimmed());
}

void Dispositivo::ConfereExtras(const Quadro &quadro)
{
    // Extra fields and their cheque come in one run of sequence numbers. A gap means that the host gave that
    // cheque up: its fields must not print on the next one.
    const bool emSeguida =
        m_sequenciaDosExtras && static_cast<std::uint8_t>(*m_sequenciaDosExtras + 1) == quadro.sequencia;
    if ((quadro.tipo != 'X' && quadro.tipo != 'C') || !emSeguida)
        m_extras.clear();
    m_sequenciaDosExtras.reset();
    if (quadro.tipo == 'X')
        m_sequenciaDosExtras = quadro.sequencia;
}

} // namespace simulador
