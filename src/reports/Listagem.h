// The listing of a register: its query, and its pages for the device and for the system printer.
#pragma once

#include <functional>
#include <optional>
#include <QString>

namespace reports {

/// The registers that are listed.
enum class Cadastrados { Cidade, Favorecido, Bancos, Transferencia };
enum class Ordem { Nome, Codigo };

QString ConsultaDaListagem(Cadastrados tabela, Ordem ordem);
/// Title of the question for a document.
QString TituloDaPergunta(Cadastrados tabela);

struct PedidoDeListagem {
    Cadastrados tabela = Cadastrados::Cidade;
    bool naImpressora = false; ///< on the system printer, else on the device
    QString hoje;              ///< "ddmmyy"
};

struct RegistroListado {
    QString codigo, nome;
};

struct FeitioDaListagem;
struct FolhaDaListagem;

/// Lays out page after page; the rows are asked for one after the other, each once.
class Listagem {
public:
    /// @param registro the row of a number from 0 to `quantos` - 1
    Listagem(const PedidoDeListagem &pedido, qint64 quantos, std::function<RegistroListado(qint64)> registro);

    /// The next page; nothing behind the last one.
    std::optional<QString> ProximaPagina();
    /// Whether the last page has been given. A full page is never the last one.
    [[nodiscard]] bool Terminou() const { return m_terminou; }

private:
    [[nodiscard]] QString Cabecalho() const;
    [[nodiscard]] QString Celula(const RegistroListado &registro, int coluna) const;

    const FeitioDaListagem &m_feitio;
    const FolhaDaListagem &m_folha;
    const QString m_fimLinha;
    const QString m_hoje;
    const qint64 m_quantos;
    const std::function<RegistroListado(qint64)> m_registro;
    qint64 m_proximo = 0;
    int m_pagina = 1;
    bool m_terminou = false;
};

} // namespace reports
