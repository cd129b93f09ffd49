// A program that writes cheques without a pause while another one is tested.
#pragma once

#include <atomic>
#include <QString>
#include <SQLiteCpp/SQLiteCpp.h>
#include <thread>

/// Adds cheques behind those of the log, each in a transaction of its own, as the program does. The first one
/// is written when the constructor returns.
class Escritor {
public:
    explicit Escritor(const QString &loja);
    ~Escritor();
    Escritor(const Escritor &) = delete;
    Escritor &operator=(const Escritor &) = delete;
    [[nodiscard]] int Escritas() const { return m_escritas; }
    /// Whether it met a lock that did not go away.
    [[nodiscard]] bool Falhou() const { return m_falhou; }

private:
    void Escreve();

    SQLite::Database m_loja;
    std::atomic<int> m_escritas = 0;
    std::atomic<bool> m_para = false;
    std::atomic<bool> m_falhou = false;
    std::thread m_linha;
};
