// QX70.INI with other layouts of banks: written beside it, whole or not at all.
#pragma once

#include "plataforma/basico/RuntimeError.h"

#include <QString>
#include <QTemporaryDir>
#include <vector>

namespace banco {

/// A key of section Formato: the bank's code, and its layout as TextoDoFormato gives it.
struct ChaveDoFormato {
    QString codigo;
    QString valor;
};

/// QX70.INI as it will be: a copy beside it, which takes its place before the store is committed: should the
/// machine stop in between, a key without its bank does no harm, but a bank without its key does. Unless it
/// is kept, the former file takes its place again.
class IniNovo {
public:
    /// @throws RuntimeError 3051 when the file of that folder could not be replaced
    explicit IniNovo(const QString &pasta);
    ~IniNovo();
    IniNovo(const IniNovo &) = delete;
    IniNovo &operator=(const IniNovo &) = delete;
    /// Writes the keys of the banks; everything else stays. @throws RuntimeError 3051
    void EscreveFormato(const std::vector<ChaveDoFormato> &chaves);
    /// @throws RuntimeError 3051
    void TomaOLugar();
    /// The store is safe: the new file stays.
    void Mantem() { m_provisorio = false; }

private:
    [[nodiscard]] bool PodeSerTrocado() const;
    [[nodiscard]] bool CopiaOAtual() const;
    [[nodiscard]] plataforma::RuntimeError Erro() const;

    QString m_destino;
    QTemporaryDir m_oficina;
    QString m_novo;
    QString m_antigo;          ///< the former file, while the new one stands in its place
    bool m_provisorio = false; ///< the new file stands in its place, but may have to go
};

} // namespace banco
