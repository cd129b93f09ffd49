// What the program says: results on the standard output, complaints and progress on the standard error.
#pragma once

#include <chrono>
#include <QString>

namespace banco {

void Diz(const QString &linha);
void Reclama(const QString &linha);
/// Complains about the call and points to --ajuda. @return the exit code of a bad call
int ReclamaDaChamada(const QString &motivo);

/// "Log: 1234 linhas"
QString ContaDeLinhas(const QString &oQue, qint64 linhas);

/// The progress of long work. On a terminal one line that is written over, from the first second on;
/// elsewhere a line at every tenth, for work of at least kPassosLongo steps.
class Progresso {
public:
    static constexpr qint64 kPassosLongo = 100'000;

    Progresso(QString oQue, qint64 total);
    ~Progresso();
    Progresso(const Progresso &) = delete;
    Progresso &operator=(const Progresso &) = delete;

    /// `feitos` of the total steps are done; cheap enough to be called at every step.
    void Mostra(qint64 feitos);

private:
    void MostraNoTerminal(qint64 porCento);

    QString m_oQue;
    qint64 m_total;
    qint64 m_ultimo = 0;
    bool m_terminal;
    bool m_escrito = false;
    std::chrono::steady_clock::time_point m_inicio = std::chrono::steady_clock::now();
};

} // namespace banco
