// The line table of a multi-line text box: lines parted by CR LF, no wrapping.
#pragma once

#include <QList>
#include <QString>

namespace plataforma {

/// Characters and lines are counted from 0; a CR LF counts as two characters, which belong to the line before
/// it.
class TabelaDeLinhas {
public:
    /// `texto` with LF, CR or CR LF between its lines.
    explicit TabelaDeLinhas(const QString &texto);

    [[nodiscard]] const QString &Texto() const { return m_texto; }         ///< with CR LF
    [[nodiscard]] qsizetype LineCount() const { return m_inicios.size(); } ///< at least 1
    [[nodiscard]] qsizetype LineFromChar(qsizetype posicao) const;         ///< the last line behind the end
    [[nodiscard]] qsizetype
    LineIndex(qsizetype linha) const; ///< its first character; -1 when there is no such line
    [[nodiscard]] qsizetype
    LineLength(qsizetype posicao) const; ///< of the line that holds a character, without CR LF
    /// The position in Texto() of a position in the box, where each break is one character.
    [[nodiscard]] qsizetype DaCaixa(qsizetype posicao) const;

private:
    QString m_texto;
    QList<qsizetype> m_inicios;
};

} // namespace plataforma
