// The crossing to the Device Library: buffers, 16-bit numbers, and what happens while it is not there.
#include "device/Impressora.h"

#include "plataforma/basico/Texto.h"
#include <algorithm>
#include <limits>

namespace device {

namespace {

/// A text in the buffer that the library gets.
class TextoDaBiblioteca {
public:
    explicit TextoDaBiblioteca(const QString &texto) : m_bytes(plataforma::ToAnsi(texto))
    {
        m_bytes.append(kFolgaDoTexto, '\0');
    }
    char *Ponteiro() { return m_bytes.data(); }
    /// What stands in the buffer now, up to the first NUL.
    [[nodiscard]] QString Volta() const
    {
        return plataforma::FromAnsi(
            QByteArray(m_bytes.constData(), qstrnlen(m_bytes.constData(), Tamanho())));
    }

private:
    [[nodiscard]] size_t Tamanho() const { return static_cast<size_t>(m_bytes.size()); }
    QByteArray m_bytes;
};

class EmTrabalho {
public:
    explicit EmTrabalho(nucleo::Ocupado &ocupado) : m_ocupado(ocupado) { m_ocupado.Comeca(); }
    ~EmTrabalho() { m_ocupado.Termina(); }
    EmTrabalho(const EmTrabalho &) = delete;
    EmTrabalho &operator=(const EmTrabalho &) = delete;

private:
    nucleo::Ocupado &m_ocupado;
};

std::int16_t Numero16(int numero)
{
    using Limites = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(numero, Limites::min(), Limites::max()));
}

} // namespace

Impressora::Impressora(const QStringList &pastas, nucleo::Mensagens &mensagens, nucleo::Indicador &indicador,
                       nucleo::Ocupado &ocupado)
    : m_biblioteca(pastas), m_mensagens(mensagens), m_indicador(indicador), m_ocupado(ocupado)
{
}

const Operacoes *Impressora::Carrega()
{
    const Operacoes *operacoes = m_biblioteca.Carrega();
    if (!operacoes && !m_avisada) {
        m_avisada = true;
        m_mensagens.MsgBox(m_biblioteca.Falha()->texto, nucleo::Botoes::Ok, nucleo::Icone::Pare);
    }
    return operacoes;
}

template <typename... Parametros, typename... Argumentos>
int Impressora::Chama(std::int16_t (*Operacoes::*operacao)(Parametros...), int semBiblioteca,
                      Argumentos... argumentos)
{
    const Operacoes *operacoes = Carrega();
    if (!operacoes)
        return semBiblioteca;
    const EmTrabalho emTrabalho(m_ocupado);
    return (operacoes->*operacao)(argumentos...);
}

int Impressora::IniciaPorta(QString &porta)
{
    if (!Carrega())
        return kPortaFechada;
    TextoDaBiblioteca texto(porta);
    const int resultado = Chama(&Operacoes::IniciaPorta, kPortaFechada, texto.Ponteiro());
    porta = texto.Volta();
    return resultado;
}

int Impressora::FechaPorta()
{
    return Chama(&Operacoes::FechaPorta, kSemBiblioteca);
}

int Impressora::TravaDoc(int trava)
{
    return Chama(&Operacoes::TravaDoc, kSemBiblioteca, Numero16(trava));
}

int Impressora::FormataTX(const QString &texto, int modo, int f3, int f4, int f5, int f6)
{
    TextoDaBiblioteca dados(texto);
    return Chama(&Operacoes::FormataTX, kSemBiblioteca, dados.Ponteiro(), Numero16(modo), Numero16(f3),
                 Numero16(f4), Numero16(f5), Numero16(f6));
}

int Impressora::KorvalenTX(const QString &dados)
{
    TextoDaBiblioteca texto(dados);
    return Chama(&Operacoes::KorvalenTX, kSemBiblioteca, texto.Ponteiro());
}

int Impressora::ComandoTX(const QString &comando, int tamanho)
{
    TextoDaBiblioteca texto(comando);
    return Chama(&Operacoes::ComandoTX, kSemBiblioteca, texto.Ponteiro(), Numero16(tamanho));
}

int Impressora::ImprimeCheque(const TextosDoCheque &textos)
{
    TextoDaBiblioteca banco(textos.banco);
    TextoDaBiblioteca valor(textos.valor);
    TextoDaBiblioteca favorecido(textos.favorecido);
    TextoDaBiblioteca cidade(textos.cidade);
    TextoDaBiblioteca data(textos.data);
    TextoDaBiblioteca extra(textos.extra);
    return Chama(&Operacoes::ImprimeCheque, kSemBiblioteca, banco.Ponteiro(), valor.Ponteiro(),
                 favorecido.Ponteiro(), cidade.Ponteiro(), data.Ponteiro(), extra.Ponteiro());
}

int Impressora::ImprimeCampoX(int campo, int linha, int coluna, const QString &texto)
{
    TextoDaBiblioteca dados(texto);
    return Chama(&Operacoes::ImprimeCampoX, kSemBiblioteca, Numero16(campo), Numero16(linha),
                 Numero16(coluna), dados.Ponteiro());
}

int Impressora::IncluiBanco(const QString &codigo, const QString &posicoes)
{
    TextoDaBiblioteca textoDoCodigo(codigo);
    TextoDaBiblioteca textoDasPosicoes(posicoes);
    return Chama(&Operacoes::IncluiBanco, kSemBiblioteca, textoDoCodigo.Ponteiro(),
                 textoDasPosicoes.Ponteiro());
}

int Impressora::IncluiFavorecido(const QString &codigo, const QString &nome)
{
    TextoDaBiblioteca textoDoCodigo(codigo);
    TextoDaBiblioteca textoDoNome(nome);
    return Chama(&Operacoes::IncluiFavorecido, kSemBiblioteca, textoDoCodigo.Ponteiro(),
                 textoDoNome.Ponteiro());
}

int Impressora::ExcluiFavorecido(const QString &codigo)
{
    TextoDaBiblioteca texto(codigo);
    return Chama(&Operacoes::ExcluiFavorecido, kSemBiblioteca, texto.Ponteiro());
}

int Impressora::CancelaRel(const QString &alvo)
{
    TextoDaBiblioteca texto(alvo);
    return Chama(&Operacoes::CancelaRel, kSemBiblioteca, texto.Ponteiro());
}

int Impressora::AlteraMoeda(const QString &singular, const QString &plural)
{
    TextoDaBiblioteca textoDoSingular(singular);
    TextoDaBiblioteca textoDoPlural(plural);
    return Chama(&Operacoes::AlteraMoeda, kSemBiblioteca, textoDoSingular.Ponteiro(),
                 textoDoPlural.Ponteiro());
}

int Impressora::ZeraConfig()
{
    return Chama(&Operacoes::ZeraConfig, kSemBiblioteca);
}

int Impressora::MontaValor(const QString &valor, const QString &singular, const QString &plural)
{
    TextoDaBiblioteca textoDoValor(valor);
    TextoDaBiblioteca textoDoSingular(singular);
    TextoDaBiblioteca textoDoPlural(plural);
    // Any number but 1 and 2 would count as success, and the words of an earlier amount would be read.
    return Chama(&Operacoes::MontaValor, kArquivoNaoAbre, textoDoValor.Ponteiro(), textoDoSingular.Ponteiro(),
                 textoDoPlural.Ponteiro());
}

void Impressora::SinalizaPorta(int ligar)
{
    constexpr std::uint32_t verde = 0x00FF00;
    constexpr std::uint32_t amarelo = 0x00FFFF;
    constexpr std::uint32_t vermelho = 0x0000FF;
    // On purpose: 0 leaves the gauge as it is, so that it stays red and full after the work.
    if (ligar == 0)
        return;
    m_indicador.Cor(verde);
    for (int i = 0; i <= 100; i += 2) {
        m_indicador.Valor(i);
        if (i > 60 && i < 80)
            m_indicador.Cor(amarelo);
        if (i > 80)
            m_indicador.Cor(vermelho);
    }
}

} // namespace device
