// The report of the listed cheques: list lines in, pages out. It knows nothing but the text of the lines.
#pragma once

#include <functional>
#include <optional>
#include <QString>

namespace reports {

enum class Forma { Normal, Compacto };
enum class Destino { Dispositivo, Arquivo, Impressora };

struct Pedido {
    Forma forma = Forma::Normal;
    Destino destino = Destino::Dispositivo;
    QString hoje;             ///< "ddmmyy"
    int chequesPorPagina = 0; ///< `NumChkPgRel`; the system printer's forms alone heed it
};

struct Feitio;

/// Lays out page after page; the lines are asked for one after the other, each once.
class Relatorio {
public:
    /// @param linha the list line of a number from 0 to `quantas` - 1
    /// @throws RuntimeError 11 when the page of the system printer takes no cheque
    Relatorio(const Pedido &pedido, qint64 quantas, std::function<QString(qint64)> linha);

    /// The next page; nothing behind the last one.
    /// @throws RuntimeError 13 when a line has no number where its value stands
    std::optional<QString> ProximaPagina();
    /// Whether the last page has been given. A full page is never the last one.
    [[nodiscard]] bool Terminou() const { return m_terminou; }

private:
    [[nodiscard]] QString Traco(int hifens) const;
    void MontaCabecalho(const QString &hoje);
    void PoeCheque(const QString &linha);
    void PoeTotais(bool noFim);

    const Feitio &m_feitio;
    const int m_tamanho; ///< cheques on a page
    const QString m_fimLinha;
    const qint64 m_quantas;
    const std::function<QString(qint64)> m_linha;
    QString m_ateAPagina; ///< the head of a page up to its number
    QString m_depoisDaPagina;
    qint64 m_proxima = 0;
    int m_pagina = 1;
    int m_naPagina = 0;
    bool m_terminou = false;
    double m_totalPagina = 0;
    double m_totalAcumulado = 0;  ///< of all finished pages
    double m_totalCancelados = 0; ///< of all pages so far
    QString m_texto;
    qsizetype m_tamanhoDoTexto = 0; ///< of the page before
};

} // namespace reports
