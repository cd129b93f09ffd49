// Orders and their results; see Enlace.h.
#include "qx7032/Enlace.h"

#include "qx7032/Decodificador.h"
#include "qx7032/Quadro.h"
#include "qx7032/Resposta.h"

#include <algorithm>
#include <thread>

namespace qx7032 {

namespace {

// The device, after a damaged frame, takes nothing before a silence; a little more than it asks for.
constexpr std::chrono::milliseconds kSilencio{kSilencioExigido + 50};

bool MovePapel(char tipo)
{
    return tipo == 'T' || tipo == 'F' || tipo == 'C';
}

} // namespace

std::vector<std::string_view> ParteTexto(std::string_view texto, std::size_t limite)
{
    std::vector<std::string_view> partes;
    while (texto.size() > limite) {
        const std::size_t quebra = texto.substr(0, limite).rfind('\n');
        const std::size_t corte = quebra == std::string_view::npos ? limite : quebra + 1;
        partes.push_back(texto.substr(0, corte));
        texto.remove_prefix(corte);
    }
    partes.push_back(texto);
    return partes;
}

int Enlace::Abre(const std::string &porta)
{
    m_linha.Fecha();
    m_primeiraFalha = QX7032_SUCESSO;
    m_causa = QX7032_PORTA_DESCONHECIDA;
    const auto configuracao = LeConfiguracao(porta, PastaDoPrograma());
    if (configuracao) {
        m_configuracao = *configuracao;
        m_causa = m_linha.Abre(configuracao->dispositivo, configuracao->velocidade);
    }
    return m_causa;
}

int Enlace::Fecha()
{
    if (!m_linha.Aberta())
        return QX7032_SUCESSO;
    const int resultado = Anota(m_linha.Esvazia(Relogio::now() + m_configuracao.resposta));
    m_linha.Fecha();
    m_causa = QX7032_PORTA_FECHADA;
    return m_primeiraFalha == QX7032_SUCESSO ? resultado : m_primeiraFalha;
}

int Enlace::Ordena(char tipo, const EscritorDeArgumentos &argumentos)
{
    if (!m_linha.Aberta())
        return m_causa;
    return Anota(argumentos.Cabe() ? Cumpre(tipo, argumentos.Carga()) : int{QX7032_ARGUMENTO_INVALIDO});
}

int Enlace::EnviaBruto(std::string_view bytes)
{
    if (!m_linha.Aberta())
        return m_causa;
    if (bytes.find(kInicio) != std::string_view::npos) // it could be taken for a frame
        return Anota(QX7032_ARGUMENTO_INVALIDO);
    return Anota(bytes.empty() ? int{QX7032_SUCESSO} : Escreve(bytes));
}

int Enlace::Cumpre(char tipo, const std::string &carga)
{
    const std::uint8_t sequencia = m_sequencia++;
    const int escrita = Escreve(CodificaQuadro({tipo, sequencia, carga}));
    if (escrita != QX7032_SUCESSO)
        return escrita;
    return AguardaResultado(sequencia, MovePapel(tipo) ? m_configuracao.impressao : m_configuracao.resposta);
}

int Enlace::Escreve(std::string_view bytes)
{
    std::this_thread::sleep_until(m_silencioAte);
    m_linha.DescartaEntrada();
    return m_linha.Escreve(bytes, Relogio::now() + m_configuracao.resposta + m_linha.TempoDe(bytes.size()));
}

int Enlace::AguardaResultado(std::uint8_t sequencia, std::chrono::milliseconds espera)
{
    const auto fim = Relogio::now() + m_configuracao.resposta + espera; // whatever the device sends meanwhile
    auto prazo = Relogio::now() + m_configuracao.resposta;
    LeitorDeResposta resposta(sequencia);
    for (char byte = 0;;) {
        const Linha::Leitura leitura = m_linha.Le(byte, prazo);
        if (leitura == Linha::Leitura::Caiu)
            return QX7032_LINHA_CAIU;
        if (leitura == Linha::Leitura::Prazo)
            return resposta.ResultadoNoPrazo();
        switch (resposta.Recebe(byte)) {
        case LeitorDeResposta::Passo::Nada:
            break;
        case LeitorDeResposta::Passo::Confirmou:
            prazo = std::min(fim, Relogio::now() + espera);
            break;
        case LeitorDeResposta::Passo::Atrasada:
            prazo = std::min(fim, Relogio::now() + m_configuracao.resposta);
            break;
        case LeitorDeResposta::Passo::Terminou:
            return resposta.Resultado();
        }
    }
}

// Keeps the first failure for Fecha and the silence that must follow a failure of the line.
int Enlace::Anota(int resultado)
{
    if (resultado != QX7032_SUCESSO && m_primeiraFalha == QX7032_SUCESSO)
        m_primeiraFalha = resultado;
    if (resultado >= QX7032_SEM_RESPOSTA && resultado < QX7032_SEM_DOCUMENTO)
        m_silencioAte = Relogio::now() + kSilencio;
    return resultado;
}

} // namespace qx7032
