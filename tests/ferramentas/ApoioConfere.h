// What the tests of "qx70-banco confere" share: its findings, and a small office with nothing wrong.
#pragma once

#include "Apoio.h"

#include <string>
#include <vector>

Execucao Confere(const Escritorio &escritorio, const QStringList &opcoes = {});
/// The findings, without the summary below them.
std::vector<std::string> Achados(const Execucao &confere);
/// The summary.
std::string Resumo(const Execucao &confere);
/// Runs SQL on the store.
void Muda(const Escritorio &escritorio, const std::string &comandos);

/// An office with three banks, ten cheques and nothing wrong.
class Pequeno : public Escritorio {
public:
    Pequeno();
    void TrocaNoIni(const QByteArray &de, const QByteArray &para) const;
};

/// The files of an office as they are.
struct Bytes {
    explicit Bytes(const Escritorio &escritorio);
    bool operator==(const Bytes &) const = default;

    QStringList nomes;
    QByteArray loja;
    QByteArray ini;
};
