// Documents as numbered files in a folder.
#pragma once

#include <QString>

#include "Documento.h"

namespace simulador {

class Arquivos {
public:
    /// The folder is made when it is missing; numbers go on from the highest that is there.
    /// @param figuras PNG and PDF as well as text and detail
    Arquivos(const QString &pasta, bool figuras);
    /// Why the folder cannot be used, in Portuguese; empty when it can.
    [[nodiscard]] const QString &Falha() const { return m_falha; }

    struct Gravado {
        QString base;  ///< absolute path without the ending: ".../000001-cheque"
        QString falha; ///< in Portuguese; empty when every file was written
    };
    /// Writes NNNNNN-cheque or NNNNNN-folha with the endings .txt, .json, .png and .pdf.
    Gravado Grava(const Documento &documento);

private:
    QString m_pasta;
    bool m_figuras;
    int m_proximo = 1;
    QString m_falha;
};

} // namespace simulador
