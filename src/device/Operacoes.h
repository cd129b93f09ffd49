// The Device Library: its 15 operations as typed pointers, and the class that loads the file at run time.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <QString>
#include <QStringList>

namespace device {

/// File name of the Device Library.
inline const QString kArquivoDaBiblioteca = QStringLiteral("libqx7032.so");

/// The operations as the library exports them. A text is a NUL-terminated Windows-1252 buffer that the
/// library may rewrite in place; numbers are 16-bit. 1 is success unless told otherwise.
struct Operacoes {
    std::int16_t (*IniciaPorta)(char *porta) = nullptr; ///< 1 = open, 0 = failed; "COM1" to "COM4"
    std::int16_t (*FechaPorta)() = nullptr;
    std::int16_t (*TravaDoc)(std::int16_t trava) = nullptr; ///< 1 holds the document, 0 releases it
    std::int16_t (*FormataTX)(char *texto, std::int16_t modo, std::int16_t f3, std::int16_t f4,
                              std::int16_t f5, std::int16_t f6) = nullptr;
    std::int16_t (*KorvalenTX)(char *dados) = nullptr;
    std::int16_t (*ComandoTX)(char *comando, std::int16_t tamanho) = nullptr;
    std::int16_t (*ImprimeCheque)(char *banco, char *valor, char *favorecido, char *cidade, char *data,
                                  char *extra) = nullptr;
    std::int16_t (*ImprimeCampoX)(std::int16_t campo, std::int16_t linha, std::int16_t coluna,
                                  char *texto) = nullptr;
    std::int16_t (*IncluiBanco)(char *codigo, char *posicoes) = nullptr;
    std::int16_t (*IncluiFavorecido)(char *codigo, char *nome) = nullptr;
    std::int16_t (*ExcluiFavorecido)(char *codigo) = nullptr;
    std::int16_t (*CancelaRel)(char *alvo) = nullptr;
    std::int16_t (*AlteraMoeda)(char *singular, char *plural) = nullptr;
    std::int16_t (*ZeraConfig)() = nullptr;
    std::int16_t (*MontaValor)(char *valor, char *singular, char *plural) = nullptr; ///< 1 and 2 are failures
};

/// Why the library is not there.
struct FalhaDaBiblioteca {
    enum class Causa { ArquivoAusente, ArquivoInvalido, OperacaoAusente };
    Causa causa = Causa::ArquivoAusente;
    QString texto; ///< for the operator: what failed, on which file, and what to do
};

/// Loads the library when it is first asked for and owns it; it is given back with this object.
/// The first folder that holds a file of the name decides: a bad file there is reported, not passed over.
class Biblioteca {
public:
    explicit Biblioteca(QStringList pastas);

    /// The operations, or null when the library cannot be used; then Falha() says why. A failure is not kept:
    /// the next call looks again. A loaded library stays.
    const Operacoes *Carrega();
    [[nodiscard]] const std::optional<FalhaDaBiblioteca> &Falha() const { return m_falha; }

private:
    struct FechaBiblioteca {
        void operator()(void *alca) const;
    };
    using Alca = std::unique_ptr<void, FechaBiblioteca>;

    [[nodiscard]] QString ProcuraArquivo() const;
    const Operacoes *Recusa(FalhaDaBiblioteca::Causa causa, const QString &texto);

    QStringList m_pastas;
    Alca m_alca;
    Operacoes m_operacoes;
    std::optional<FalhaDaBiblioteca> m_falha;
};

/// Where the library is looked for: the application folder, then the folder of the executable.
QStringList PastasDaBiblioteca(const QString &caminhoApp);

} // namespace device
