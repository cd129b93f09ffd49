// A printing system of the test's own: a CUPS daemon in a folder of its own, whose queues keep what is
// printed as PDF files.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace apoio {

/// A queue as the daemon is told of it.
struct Fila {
    QString nome;
    bool padrao = true;
    bool parada = false; ///< disabled: takes documents and prints none
    bool recusa = false; ///< takes no documents
};

/// Printing of this process goes to it alone, also while it is off. The daemon listens on a socket file,
/// never outlives the test, and runs as whoever runs the test.
class FilaDeImpressao {
public:
    explicit FilaDeImpressao(const QList<Fila> &filas = {{"Papel"}});
    ~FilaDeImpressao();
    FilaDeImpressao(const FilaDeImpressao &) = delete;
    FilaDeImpressao &operator=(const FilaDeImpressao &) = delete;

    /// Starts the daemon and waits until it listens; the test ends when it does not.
    void Liga();
    void Desliga();

    /// Path of the socket, the same for each object of this process.
    [[nodiscard]] static QString Elo();
    /// PDF of the nth document that the daemon took, from 1; waits for it. The test ends when none comes.
    [[nodiscard]] QString Documento(int n) const;
    /// How many came out so far.
    [[nodiscard]] int Documentos() const;

private:
    void EscreveConfiguracao(const QList<Fila> &filas) const;
    void EscreveFila(const Fila &fila) const;
    void Escreve(const QString &nome, const QString &conteudo) const;

    QTemporaryDir m_pasta;
    QProcess m_cups;
};

/// Width in points of a character of a fixed-pitch type of that size: 0.6 of it.
inline constexpr double kPasso = 0.6;

/// Lines of each sheet of a PDF in a fixed-pitch type, as they stand in their columns; the blank ones at the
/// end of a sheet are left out.
QList<QStringList> FolhasDoPdf(const QString &pdf, double tamanho = 9);
/// What a program says of a file, such as pdffonts. The test ends when it fails.
QString SaidaDe(const QString &programa, const QStringList &argumentos);

} // namespace apoio
