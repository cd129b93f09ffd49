// Invented registers and cheques. The same seed gives the same data on every machine.
#pragma once

#include "Leiaute.h"

#include <QDate>
#include <QString>
#include <random>
#include <string>
#include <vector>

namespace banco {

struct BancoInventado {
    std::string codigo; ///< three digits, "001" on
    QString nome;       ///< at most 30 characters
    Leiaute leiaute;    ///< obeys the position rule; differs from that of every other bank
};

/// The first `quantos` banks, at most 999. The first three are the same whatever the seed.
std::vector<BancoInventado> InventaBancos(qint64 quantos, quint32 semente);
/// City names of at most 20 characters, all different.
std::vector<std::string> InventaCidades(qint64 quantas, quint32 semente);
/// Payee names of at most 47 characters; namesakes occur.
std::vector<std::string> InventaFavorecidos(qint64 quantos, quint32 semente);

/// One row of the log, each field as the program writes it.
struct ChequeInventado {
    std::string indice, codigo, banco, valor, favorecido, local, data, numero, cancelado;
    bool deSerie = false; ///< a cheque of a series, whose row has no comments at all
    std::string comentario, comentario1, comentario2;
};

/// Writes cheques one after the other: numbers and dates never go back, and the last is of `hoje`.
class Emissor {
public:
    struct Cadastro {
        std::vector<std::string> bancos, cidades, favorecidos; ///< none of them empty
    };

    Emissor(Cadastro cadastro, qint64 total, QDate hoje, quint32 semente);
    const ChequeInventado &Proximo();

private:
    std::size_t Sorteia(std::size_t quantos);
    bool UmaEm(std::size_t quantas) { return Sorteia(quantas) == 0; }
    void DataDoCheque();
    void ValorDoCheque();
    void ComentariosDoCheque();

    Cadastro m_cadastro;
    qint64 m_total;
    QDate m_hoje;
    std::mt19937 m_acaso;
    qint64 m_porDia;
    qint64 m_ordem = 0;
    qint64 m_diasAtras = -1;
    ChequeInventado m_cheque;
};

} // namespace banco
