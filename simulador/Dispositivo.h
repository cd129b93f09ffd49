// The simulated device: orders, commands and copy lines in; answers and documents out. No clock, no line, no
// files.
#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <vector>

#include "Falha.h"
#include "Folha.h"
#include "Leiaute.h"
#include "Memoria.h"
#include "qx7032/Decodificador.h"

namespace simulador {

/// What one event on the line brings about, in this order: `imediata` goes out, the documents come out,
/// `final` goes out.
struct Reacao {
    QByteArray imediata; ///< one byte, or rubbish; may be empty
    std::vector<Documento> documentos;
    QByteArray final;            ///< the frame with the result; may be empty
    int resultado = 0;           ///< the result number in `final`; 0 when none was told
    bool lenta = false;          ///< `final` goes out late
    bool queda = false;          ///< the line hangs up behind `final`, which is cut in the middle
    bool tomouDocumento = false; ///< the document in the slot was taken in
    bool memoriaMudou = false;
    int comandoAno = 0; ///< 1, 2 or 4 when the year form was just set
    QString aviso;      ///< why something was refused, in Portuguese; may be empty
};

class Dispositivo {
public:
    explicit Dispositivo(Memoria memoria = {}) : m_memoria(std::move(memoria)) {}

    /// Whether the event needs a document in the slot before it can be carried out. Not when a fault in force
    /// keeps it from being carried out anyway.
    [[nodiscard]] bool PedeDocumento(const qx7032::Evento &evento) const;
    /// Carries an event out. Without a document in the slot what needs one is refused with 20.
    Reacao Recebe(const qx7032::Evento &evento, bool haDocumento);
    /// The sheets still held, when the device is switched off.
    std::vector<Documento> Encerra();

    [[nodiscard]] const Memoria &MemoriaAtual() const { return m_memoria; }
    /// A bank loaded by hand, not over the line.
    void PoeBanco(const QString &codigo, const Banco &banco) { m_memoria.bancos.insert(codigo, banco); }
    [[nodiscard]] const Falha &FalhaAtual() const { return m_falha; }
    void PoeFalha(const Falha &falha) { m_falha = falha; }
    /// Whether a document is held by TravaDoc(1).
    [[nodiscard]] bool Travado() const { return m_travado; }

private:
    struct ExtraPendente {
        int campo = 0;
        CampoExtra extra;
    };

    Reacao RecebeQuadro(const qx7032::Quadro &quadro, bool haDocumento);
    void ExecutaQuadro(const qx7032::Quadro &quadro, TipoDeFalha falha, bool haDocumento, Reacao &reacao);
    int Executa(const qx7032::Quadro &quadro, int faltaDePapel, Reacao &reacao);
    int Trava(const qx7032::Quadro &quadro, int faltaDePapel, Reacao &reacao);
    int Formata(const qx7032::Quadro &quadro, int faltaDePapel, Reacao &reacao);
    int ImprimeCheque(const qx7032::Quadro &quadro, int faltaDePapel, Reacao &reacao);
    int GuardaExtra(const qx7032::Quadro &quadro, Reacao &reacao);
    int IncluiBanco(const qx7032::Quadro &quadro, Reacao &reacao);
    int IncluiFavorecido(const qx7032::Quadro &quadro, Reacao &reacao);
    int ExcluiFavorecido(const qx7032::Quadro &quadro, Reacao &reacao);
    int CancelaRel(const qx7032::Quadro &quadro, Reacao &reacao);
    int AlteraMoeda(const qx7032::Quadro &quadro, Reacao &reacao);
    int ZeraConfig(const qx7032::Quadro &quadro, Reacao &reacao);
    void ConfereExtras(const qx7032::Quadro &quadro);
    void SoltaDocumento(Reacao &reacao);
    void RecebeTexto(const QByteArray &bytes, Reacao &reacao);

    Memoria m_memoria;
    Falha m_falha;
    Folha m_folha;
    bool m_travado = false;
    int m_recusaDaTrava = 0; ///< the held document is missing: result of what is to be printed on it
    std::vector<ExtraPendente> m_extras;
    std::optional<std::uint8_t> m_sequenciaDosExtras;
};

} // namespace simulador
