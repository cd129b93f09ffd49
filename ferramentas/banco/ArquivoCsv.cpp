// A CSV file that somebody else may have written: its encoding and separator found out, then its records.
#include "ArquivoCsv.h"

#include "plataforma/basico/RuntimeError.h"

#include <QFileInfo>
#include <vector>

namespace banco {

namespace {

using plataforma::RuntimeError;

RuntimeError ErroDeIlegivel(const QString &caminho)
{
    return {
        plataforma::ErrOpen,
        QStringLiteral("O arquivo %1 não pode ser lido. Verifique o disco e as permissões.").arg(caminho)};
}

} // namespace

ArquivoCsv::ArquivoCsv(const QString &caminho, std::optional<char> separador,
                       std::optional<Codificacao> codificacao)
    : m_caminho(caminho), m_arquivo(caminho)
{
    const QFileInfo info(caminho);
    if (!info.exists())
        throw RuntimeError(plataforma::ErrFileMissing,
                           QStringLiteral("Não existe o arquivo %1.").arg(caminho));
    if (!info.isFile() || !m_arquivo.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw ErroDeIlegivel(caminho);
    m_tamanho = info.size();
    Sonda(separador, codificacao);
    m_leitor.emplace([this](char *para, std::size_t quantos) { return LeBytes(para, quantos); }, m_separador);
}

// Looks at the file, all of it where the encoding is to be found out, and stands at its first record then.
void ArquivoCsv::Sonda(std::optional<char> separador, std::optional<Codificacao> codificacao)
{
    std::vector<char> bloco(LeitorCsv::kMaiorRegistro);
    std::size_t lidos = LeBytes(bloco.data(), bloco.size());
    const std::string_view comeco(bloco.data(), lidos);
    if (comeco.starts_with("\xFF\xFE") || comeco.starts_with("\xFE\xFF"))
        throw RuntimeError(
            plataforma::ErrOpen,
            QStringLiteral("O arquivo %1 está em UTF-16. Grave-o de novo na planilha como CSV em UTF-8.")
                .arg(m_caminho));
    const bool comMarca = comeco.starts_with(kMarcaUtf8);
    m_separador = separador.value_or(SeparadorDe(comeco));
    Detector detector;
    while (!codificacao && lidos > 0) {
        detector.Ve({bloco.data(), lidos});
        lidos = LeBytes(bloco.data(), bloco.size());
    }
    m_codificacao = codificacao.value_or(detector.Resultado());
    const bool salta = comMarca && m_codificacao == Codificacao::Utf8;
    if (!m_arquivo.seek(salta ? static_cast<qint64>(kMarcaUtf8.size()) : 0))
        throw ErroDeIlegivel(m_caminho);
    m_lidos = 0;
}

std::size_t ArquivoCsv::LeBytes(char *para, std::size_t quantos)
{
    const qint64 lidos = m_arquivo.read(para, static_cast<qint64>(quantos));
    if (lidos < 0)
        throw ErroDeIlegivel(m_caminho);
    m_lidos += lidos;
    return static_cast<std::size_t>(lidos);
}

std::size_t ArquivoCsv::Decodifica(std::string_view campo, std::string &texto) const
{
    texto.clear();
    if (m_codificacao == Codificacao::Windows1252)
        return PoeEmUtf8(texto, campo);
    texto.append(campo);
    return AchaForaDeUtf8(campo);
}

char SeparadorDe(std::string_view texto)
{
    bool entreAspas = false;
    for (const char c : texto) {
        if (c == '"')
            entreAspas = !entreAspas;
        else if (!entreAspas && (c == ';' || c == ',' || c == '\t'))
            return c;
        else if (!entreAspas && c == '\n')
            break;
    }
    return ';';
}

} // namespace banco
