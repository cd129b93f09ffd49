// The settings file of the office: one routine reads and writes every key.
#pragma once

#include "plataforma/perfil/ProfileFile.h"

#include <QString>

namespace nucleo {

inline const QString kAusente = QStringLiteral("-2"); ///< answer of a read when the key is missing
inline const QString kVazio = QStringLiteral("*%*");  ///< given to a write: stores an empty value

/// Sections that more than one room reads or writes.
inline const QString kOpcoes = QStringLiteral("Opcoes");
inline const QString kFormato = QStringLiteral("Formato");

class QX_INI {
public:
    explicit QX_INI(const QString &arquivoIni) : m_arquivo(arquivoIni) {}

    /// With a `valor`, writes the key and returns "1", or "0" when the write failed; kVazio stores an empty
    /// value. With an empty `valor`, reads the key: at most 159 characters, "-2" when it is missing or begins
    /// with the number -2.
    QString GravaIni(const QString &secao, const QString &chave, const QString &valor = {}) const;

private:
    plataforma::ProfileFile m_arquivo;
};

} // namespace nucleo
