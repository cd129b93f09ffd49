// What the tests of the single copy share: folders of their own, a raw peer and processes of the auxiliary
// program.
#pragma once

#include "Mostra.h"
#include "plataforma/ambiente/CopiaUnica.h"
#include <gtest/gtest.h>
#include <memory>
#include <QProcess>
#include <QTemporaryDir>
#include <vector>

/// Runs the event loop until `feito`, for some seconds at most. @return whether it came true
bool RodaAte(const std::function<bool()> &feito);

/// A peer that speaks bytes, without the program's own sender.
class Cliente {
public:
    explicit Cliente(const QString &socket);
    ~Cliente();
    Cliente(const Cliente &) = delete;
    Cliente &operator=(const Cliente &) = delete;

    [[nodiscard]] bool Conectado() const { return m_conectado; }
    bool Envia(const QByteArray &bytes) const;
    /// All answers so far.
    QByteArray Respostas();
    /// Whether the other end has closed.
    bool Fechado();
    void Desliga();

private:
    int m_fd;
    bool m_conectado = false;
    bool m_fechado = false;
    QByteArray m_respostas;
};

/// An application folder and a user's folder for locks, both temporary.
class CopiaTeste : public testing::Test {
protected:
    using Campos = plataforma::Campos;
    using CopiaUnica = plataforma::CopiaUnica;

    [[nodiscard]] QString App() const { return m_app.path(); }
    [[nodiscard]] plataforma::LugaresDeTrava Lugares() const
    {
        return {{m_usuario.path()}, m_usuario.path()};
    }
    [[nodiscard]] QString Socket() const;
    /// The auxiliary program, started and speaking; it ends with the test.
    QProcess &Inicia(const QStringList &argumentos);
    /// The next line that an auxiliary process says; empty when none comes in time.
    static QString Linha(QProcess &processo);
    void TearDown() override;

    QTemporaryDir m_app;
    QTemporaryDir m_usuario;

private:
    std::vector<std::unique_ptr<QProcess>> m_processos;
};
