// Where the rows of a dynaset come from: walked by key, or listed beforehand in an order of their own.
#pragma once

#include "Rows.h"
#include "Selecao.h"
#include <optional>

namespace plataforma::jet {

/// A set of rows. Every reading begins and ends inside the call; a block stays empty where there is no row.
class Fonte {
public:
    explicit Fonte(const Selecao &selecao) : m_selecao(selecao) {}
    virtual ~Fonte() = default;
    Fonte(const Fonte &) = delete;
    Fonte &operator=(const Fonte &) = delete;

    virtual void LePrimeira(Bloco &bloco) = 0;
    virtual void LeUltima(Bloco &bloco) = 0;
    /// The rows behind or before a place, at most `quantas`, in the order of the set and next to the place.
    /// The place's own row may be gone.
    virtual void LeDepois(const Lugar &lugar, int quantas, Bloco &bloco) = 0;
    virtual void LeAntes(const Lugar &lugar, int quantas, Bloco &bloco) = 0;
    /// The first row of the set that meets a condition in SQL.
    virtual void Procura(const QString &condicao, Bloco &bloco) = 0;
    virtual qint64 Conta() = 0;
    /// All rows of the set in its order: the fields of these indexes in the query.
    [[nodiscard]] virtual Rows LeTudo(const QList<qsizetype> &campos) = 0;
    /// The row of one place, as it is now.
    void LeUma(const Lugar &lugar, Bloco &bloco);

    /// Tell the set what its own dynaset wrote.
    virtual void Incluida(const Chave &chave) = 0;
    virtual void Alterada(const Lugar &lugar, const Chave &nova) = 0;
    virtual void Apagada(const Lugar &lugar) = 0;

protected:
    /// Adds the row of one place, when it still is there.
    void JuntaUma(const Lugar &lugar, Bloco &bloco);

    const Selecao &m_selecao;

private:
    std::unique_ptr<Comando> m_uma;
};

/// A query without order: walked by key, some rows at a time, and nothing is kept of it.
class FontePorChave final : public Fonte {
public:
    /// @throws RuntimeError 3075 when the engine refuses the query
    explicit FontePorChave(const Selecao &selecao);
    void LePrimeira(Bloco &bloco) override;
    void LeUltima(Bloco &bloco) override;
    void LeDepois(const Lugar &lugar, int quantas, Bloco &bloco) override;
    void LeAntes(const Lugar &lugar, int quantas, Bloco &bloco) override;
    void Procura(const QString &condicao, Bloco &bloco) override;
    qint64 Conta() override { return m_selecao.Conta(); }
    [[nodiscard]] Rows LeTudo(const QList<qsizetype> &campos) override;
    void Incluida(const Chave &) override {}
    void Alterada(const Lugar &, const Chave &) override {}
    void Apagada(const Lugar &) override {}

private:
    std::unique_ptr<Comando> m_primeira;
    std::unique_ptr<Comando> m_depois;
    std::unique_ptr<Comando> m_antes;
};

/// A set whose keys are listed once, 8 bytes a row. Rows stay in it however they change, new ones stand at
/// its end.
class FonteListada final : public Fonte {
public:
    /// A query with an order; listed on first need. @throws RuntimeError 3075 when the engine refuses the
    /// query
    explicit FonteListada(const Selecao &selecao);
    /// Lists a query without order now, with the current row, which belongs to it whatever it has become.
    /// @param atual the row's place; gets its index in the list
    FonteListada(const Selecao &selecao, std::optional<Lugar> &atual, bool atualApagada);

    void LePrimeira(Bloco &bloco) override;
    void LeUltima(Bloco &bloco) override;
    void LeDepois(const Lugar &lugar, int quantas, Bloco &bloco) override;
    void LeAntes(const Lugar &lugar, int quantas, Bloco &bloco) override;
    void Procura(const QString &condicao, Bloco &bloco) override;
    qint64 Conta() override;
    [[nodiscard]] Rows LeTudo(const QList<qsizetype> &campos) override;
    void Incluida(const Chave &chave) override;
    void Alterada(const Lugar &lugar, const Chave &nova) override;
    void Apagada(const Lugar &lugar) override;
    /// Lists the keys, unless that is done.
    void Lista();

private:
    void JuntaChaves(Comando &comando);
    Rows LeListando(const QList<qsizetype> &campos);
    void Percorre(qsizetype inicio, int passo, int quantas, Bloco &bloco);
    [[nodiscard]] bool EstaApagada(qsizetype indice) const;

    std::unique_ptr<Comando> m_lista; // until it has run
    ListaDeChaves m_chaves;
    std::vector<bool> m_apagadas;
    qint64 m_quantasApagadas = 0;
};

} // namespace plataforma::jet
