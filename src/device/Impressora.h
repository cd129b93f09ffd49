// Impressora: the 15 operations of the Device Library on texts and numbers of the program.
#pragma once

#include "device/Operacoes.h"
#include "nucleo/Indicador.h"
#include "nucleo/Mensagens.h"
#include <QString>
#include <QStringList>

namespace device {

/// Answer of every operation but IniciaPorta and MontaValor while the library cannot be loaded.
inline constexpr int kSemBiblioteca = -1;
/// Answer of IniciaPorta while the library cannot be loaded, and of a port that does not open.
inline constexpr int kPortaFechada = 0;
/// Failures of MontaValor; any other answer is success.
inline constexpr int kValorInvalido = 1;
inline constexpr int kArquivoNaoAbre = 2; ///< also its answer while the library cannot be loaded

/// Room behind each text in the buffer that the library may rewrite, in bytes.
inline constexpr int kFolgaDoTexto = 256;

/// The six texts of a cheque, trimmed by the caller; payee and city already through RemoveAcentos.
struct TextosDoCheque {
    QString banco;
    QString valor;
    QString favorecido;
    QString cidade;
    QString data;
    QString extra; ///< empty on a normal cheque, the value again in a series
};

/// The device link. Texts cross as Windows-1252, NUL-terminated, in a buffer of their length plus
/// kFolgaDoTexto bytes; an embedded NUL ends the text. A number outside 16 bits crosses as the nearest that
/// fits. Each call blocks until the library returns, between Comeca and Termina of Ocupado. The library is
/// loaded by the first call. While it cannot be loaded nothing is called and each operation answers a failure
/// (the numbers above); the operator is told once, at the first such call, and every later call looks for the
/// file again.
class Impressora {
public:
    /// `pastas` are the folders of the library, in order (PastasDaBiblioteca). The references must outlive
    /// this.
    Impressora(const QStringList &pastas, nucleo::Mensagens &mensagens, nucleo::Indicador &indicador,
               nucleo::Ocupado &ocupado);
    Impressora(const Impressora &) = delete;
    Impressora &operator=(const Impressora &) = delete;

    /// What the library leaves in its buffer comes back in `porta` and stays there.
    int IniciaPorta(QString &porta);
    int FechaPorta();
    int TravaDoc(int trava);
    int FormataTX(const QString &texto, int modo, int f3, int f4, int f5, int f6);
    int KorvalenTX(const QString &dados);
    int ComandoTX(const QString &comando, int tamanho); ///< `tamanho` in characters
    int ImprimeCheque(const TextosDoCheque &textos);
    int ImprimeCampoX(int campo, int linha, int coluna, const QString &texto); ///< `campo` from 1
    int IncluiBanco(const QString &codigo, const QString &posicoes);
    int IncluiFavorecido(const QString &codigo, const QString &nome);
    int ExcluiFavorecido(const QString &codigo); ///< "*" is all
    int CancelaRel(const QString &alvo);         ///< "*" all entries, "U" or "u" the last one
    int AlteraMoeda(const QString &singular, const QString &plural);
    int ZeraConfig();
    int MontaValor(const QString &valor, const QString &singular, const QString &plural);

    /// Runs the gauge of the main screen from 0 to 100, green, yellow, then red, where it stays. 0 does
    /// nothing.
    void SinalizaPorta(int ligar);

private:
    const Operacoes *Carrega();
    template <typename... Parametros, typename... Argumentos>
    int Chama(std::int16_t (*Operacoes::*operacao)(Parametros...), int semBiblioteca,
              Argumentos... argumentos);

    Biblioteca m_biblioteca;
    nucleo::Mensagens &m_mensagens;
    nucleo::Indicador &m_indicador;
    nucleo::Ocupado &m_ocupado;
    bool m_avisada = false; ///< the operator was told that the library is not there
};

} // namespace device
