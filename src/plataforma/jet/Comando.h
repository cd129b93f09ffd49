// One prepared statement. Works on the engine's own interface, since the rows are read as raw bytes and the
// engine is asked whether a statement only reads; neither can be had through SQLiteCpp.
#pragma once

#include "Chave.h"
#include "Conexao.h"
#include <memory>
#include <string_view>

struct sqlite3_stmt;

namespace plataforma::jet {

/// Sets what statements may do for as long as it lives, and with it how long they wait for other programs.
class ModoTemporario {
public:
    ModoTemporario(Conexao &conexao, Conexao::Modo modo) : m_conexao(conexao), m_antes(conexao.modo)
    {
        m_conexao.modo = modo;
        m_conexao.EsperaMais(modo == Conexao::Modo::Escrita);
    }
    ~ModoTemporario()
    {
        m_conexao.modo = m_antes;
        m_conexao.EsperaMais(m_antes == Conexao::Modo::Escrita);
    }
    ModoTemporario(const ModoTemporario &) = delete;
    ModoTemporario &operator=(const ModoTemporario &) = delete;

private:
    Conexao &m_conexao;
    Conexao::Modo m_antes;
};

/// Every failure is a RuntimeError. Values count from 1 where they go in and from 0 where they come out.
class Comando {
public:
    /// Prepares in the connection's present mode. @throws RuntimeError 3075 when a reading mode meets a
    /// writing text
    Comando(Conexao &conexao, const QString &sql);

    /// Each gives the index behind the last value bound.
    int Liga(int indice, qint64 valor);
    int LigaTexto(int indice, const QString &valor); ///< a null text goes in as NULL
    int LigaChave(int indice, const Chave &chave);

    /// @return whether there is a row
    bool Passo();
    /// Ends the reading, which gives the lock back. The values bound stay.
    void Rebobina() noexcept;

    [[nodiscard]] qint64 Inteiro(int coluna) const;
    [[nodiscard]] QString Texto(int coluna) const;
    /// The bytes of a value as text, without address for NULL; valid until the next step.
    [[nodiscard]] std::string_view Bytes(int coluna) const;
    /// The key that begins at `coluna`: a row number, or `partes` values.
    [[nodiscard]] Chave LeChave(int coluna, bool numero, int partes) const;

private:
    struct Finaliza {
        void operator()(sqlite3_stmt *comando) const noexcept;
    };
    void Exige(int codigo) const;
    void LigaValor(int indice, const Valor &valor);
    [[nodiscard]] Valor LeValor(int coluna) const;

    Conexao &m_conexao;
    std::unique_ptr<sqlite3_stmt, Finaliza> m_comando;
};

/// Rewinds a statement at the end of a block, whatever happens in it.
class Leitura {
public:
    explicit Leitura(Comando &comando) : m_comando(comando) {}
    ~Leitura() { m_comando.Rebobina(); }
    Leitura(const Leitura &) = delete;
    Leitura &operator=(const Leitura &) = delete;

private:
    Comando &m_comando;
};

} // namespace plataforma::jet
