// What the device keeps when it is switched off: layouts, payees, currency, year form, report of cheques. And
// its file.
#pragma once

#include <optional>
#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include "Posicoes.h"

namespace simulador {

inline constexpr int kLimiteDoRelatorio = 1000; ///< cheques; the oldest leaves when one more comes
inline constexpr int kTamanhoDoFavorecido = 48; ///< characters
inline constexpr int kTamanhoDaMoeda = 40;      ///< characters

struct Banco {
    QString nome; ///< may be empty: the line carries none
    Posicoes posicoes;
    bool operator==(const Banco &) const = default;
};

/// A cheque as it was sent, in the report that CancelaRel shortens.
struct ChequeEnviado {
    QString banco;
    QString valor;
    QString favorecido;
    QString cidade;
    QString data;
    bool operator==(const ChequeEnviado &) const = default;
};

struct Memoria {
    QMap<QString, Banco> bancos;        ///< by number, three digits
    QMap<QString, QString> favorecidos; ///< names by code, two digits
    QString moedaSingular = QStringLiteral("real");
    QString moedaPlural = QStringLiteral("reais");
    int digitosDoAno = 4; ///< 1, 2 or 4
    QList<ChequeEnviado> relatorio;
    bool operator==(const Memoria &) const = default;
};

/// A bank number or payee code brought to `tamanho` digits; empty unless it is one to `tamanho` digits.
QString CodigoDe(const QString &texto, int tamanho);
/// Adds a cheque to the report, within its limit.
void AnotaCheque(Memoria &memoria, const ChequeEnviado &cheque);

/// The memory as JSON in UTF-8, and back; empty when the bytes are no memory in every part.
QByteArray EscreveMemoria(const Memoria &memoria);
std::optional<Memoria> InterpretaMemoria(const QByteArray &bytes);

struct MemoriaLida {
    Memoria memoria;
    QString aviso; ///< in Portuguese; empty when all went well
};
/// Reads the file. A missing one is an empty memory. A damaged one is set aside under its name followed by
/// ".danificada",
/// ".danificada2" and so on, the notice says so, and the memory is empty.
MemoriaLida LeMemoria(const QString &caminho);
/// Replaces the file as a whole: it is the old or the new one at any moment. @returns the failure in
/// Portuguese, or nothing
QString GravaMemoria(const QString &caminho, const Memoria &memoria);

} // namespace simulador
