// A settings file of sections and keys. Its bytes are walked line by line, so that what is not understood
// stays as it is and a read ends at the key that it seeks.
#include "plataforma/perfil/ProfileFile.h"

#include "plataforma/basico/Texto.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QSaveFile>
#include <QSet>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace plataforma {

namespace {

const QByteArray MarcaUtf8 = QByteArrayLiteral("\xEF\xBB\xBF");

/// The bytes of a file, and the way in which they are text.
struct Conteudo {
    QByteArray bytes;  ///< without the mark of UTF-8
    bool utf8 = false; ///< some editor saved the file with the mark of UTF-8; it stays that way

    [[nodiscard]] QString Texto(QByteArrayView parte) const
    {
        return utf8 ? QString::fromUtf8(parte) : FromAnsi(parte.toByteArray());
    }
    [[nodiscard]] QByteArray Bytes(const QString &texto) const
    {
        return utf8 ? texto.toUtf8() : ToAnsi(texto);
    }
};

/// A name that is sought, compared as the file would hold it, without regard to case.
class Nome {
public:
    Nome(const Conteudo &conteudo, const QString &nome)
        : m_conteudo(conteudo), m_procurado(UCase(conteudo.Texto(conteudo.Bytes(nome))))
    {
    }
    [[nodiscard]] bool Casa(QByteArrayView nome) const
    {
        for (qsizetype i = 0; i < nome.size(); ++i) {
            const char c = nome[i];
            if (static_cast<unsigned char>(c) >= 0x80) {
                return UCase(m_conteudo.Texto(nome)) == m_procurado;
            }
            const char maiuscula = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
            if (i >= m_procurado.size() || m_procurado[i] != QLatin1Char(maiuscula)) {
                return false;
            }
        }
        return nome.size() == m_procurado.size();
    }

private:
    const Conteudo &m_conteudo;
    QString m_procurado;
};

bool EBranco(char16_t c)
{
    return c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == '\r';
}

QByteArrayView SemBrancos(QByteArrayView texto)
{
    qsizetype inicio = 0;
    qsizetype fim = texto.size();
    while (inicio < fim && EBranco(static_cast<unsigned char>(texto[inicio]))) {
        ++inicio;
    }
    while (fim > inicio && EBranco(static_cast<unsigned char>(texto[fim - 1]))) {
        --fim;
    }
    return texto.sliced(inicio, fim - inicio);
}

/// Goes through the lines of a text, without their ends.
class Linhas {
public:
    explicit Linhas(QByteArrayView texto) : m_texto(texto) {}
    bool Proxima()
    {
        m_inicio = m_fim;
        if (m_inicio >= m_texto.size()) {
            return false;
        }
        const qsizetype quebra = m_texto.indexOf('\n', m_inicio);
        m_fim = quebra < 0 ? m_texto.size() : quebra + 1;
        m_linha = m_texto.sliced(m_inicio, (quebra < 0 ? m_fim : quebra) - m_inicio);
        if (m_linha.endsWith('\r')) {
            m_linha.chop(1);
        }
        return true;
    }
    /// Passes over the lines that have no such character.
    void PulaAte(char caractere)
    {
        const qsizetype onde = m_texto.indexOf(caractere, m_fim);
        const QByteArrayView antes = m_texto.sliced(m_fim, (onde < 0 ? m_texto.size() : onde) - m_fim);
        m_fim = onde < 0 ? m_texto.size() : m_fim + antes.lastIndexOf('\n') + 1;
    }
    [[nodiscard]] QByteArrayView Linha() const { return m_linha; }
    [[nodiscard]] qsizetype Inicio() const { return m_inicio; } ///< of the line, in bytes of the text
    [[nodiscard]] qsizetype Fim() const { return m_fim; }       ///< behind the end of the line

private:
    QByteArrayView m_texto;
    QByteArrayView m_linha;
    qsizetype m_inicio = 0;
    qsizetype m_fim = 0;
};

/// Opens what stands under the name, when that is a file; waits for nobody. @return -1 when it cannot be read
int AbreArquivo(const QByteArray &nome)
{
    const int fd = open(nome.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat dados {};
    if (fd >= 0 && (fstat(fd, &dados) != 0 || !S_ISREG(dados.st_mode))) {
        close(fd);
        return -1;
    }
    return fd;
}

/// Whether nothing stands under the name; a link that leads nowhere is something.
bool Falta(const QByteArray &nome)
{
    struct stat dados {};
    return lstat(nome.constData(), &dados) != 0 && errno == ENOENT;
}

/// What the file holds; empty when there is none yet, nothing when it cannot be read.
std::optional<Conteudo> LeArquivo(const QString &caminho)
{
    const QByteArray nome = QFile::encodeName(caminho);
    QFile arquivo;
    const int fd = AbreArquivo(nome);
    if (fd < 0) {
        return Falta(nome) ? std::optional(Conteudo()) : std::nullopt;
    }
    if (!arquivo.open(fd, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        close(fd);
        return std::nullopt;
    }
    Conteudo conteudo{arquivo.readAll()};
    if (arquivo.error() != QFileDevice::NoError) {
        return std::nullopt;
    }
    conteudo.utf8 = conteudo.bytes.startsWith(MarcaUtf8);
    if (conteudo.utf8) {
        conteudo.bytes.remove(0, MarcaUtf8.size());
    }
    return conteudo;
}

/// The lines again, each with the end that the program writes.
void JuntaLinhas(QByteArrayView texto, QByteArray &saida)
{
    for (Linhas linhas(texto); linhas.Proxima();) {
        saida.append(linhas.Linha()).append("\r\n");
    }
}

/// Whether the bytes of an open file are on the disk; a file system that keeps none apart has nothing to
/// fail.
bool EstaNoDisco(int fd)
{
    return fsync(fd) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool GravaArquivo(const QString &caminho, const QByteArray &bytes)
{
    QSaveFile arquivo(caminho);
    // Unbuffered: what a buffer holds back would fail only inside commit, which puts the file in place all
    // the same, so that a full disk would leave an empty one.
    return arquivo.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           arquivo.write(bytes) == bytes.size() && EstaNoDisco(arquivo.handle()) && arquivo.commit();
}

/// The name inside the brackets; none when the line opens no section.
std::optional<QByteArrayView> SecaoDaLinha(QByteArrayView linha)
{
    const QByteArrayView limpa = SemBrancos(linha);
    if (!limpa.startsWith('[')) {
        return std::nullopt;
    }
    const qsizetype fim = limpa.indexOf(']');
    return fim < 0 ? std::nullopt : std::optional(SemBrancos(limpa.sliced(1, fim - 1)));
}

bool EComentario(QByteArrayView linha)
{
    return SemBrancos(linha).startsWith(';');
}

/// The name before "="; none for a comment and for a line without "=".
std::optional<QByteArrayView> ChaveDaLinha(QByteArrayView linha)
{
    const qsizetype igual = linha.indexOf('=');
    if (igual < 0 || EComentario(linha)) {
        return std::nullopt;
    }
    return SemBrancos(linha.first(igual));
}

/// The value behind "=". Nothing but blanks was stored on purpose and is one blank.
QByteArrayView ValorDaLinha(QByteArrayView linha)
{
    const QByteArrayView cru = linha.sliced(linha.indexOf('=') + 1);
    QByteArrayView valor = SemBrancos(cru);
    if (valor.isEmpty()) {
        return cru.contains(' ') ? QByteArrayView(" ") : QByteArrayView("");
    }
    const char aspas = valor[0];
    if (valor.size() > 1 && (aspas == '"' || aspas == '\'') && valor.endsWith(aspas)) {
        valor = valor.sliced(1, valor.size() - 2);
    }
    const qsizetype nulo = valor.indexOf('\0');
    return nulo < 0 ? valor : valor.first(nulo);
}

/// Where a key stands in the file, or where it would be put.
struct Lugar {
    bool temSecao = false;
    std::optional<QByteArrayView> linha; ///< the key's own
    qsizetype inicio = 0;                ///< of that line, or of the line to come, in bytes
    qsizetype fim = 0;                   ///< behind that line; a line to come has no length yet
};

/// Stops behind the heading of the first section of that name. @return whether there is one
bool AchaSecao(Linhas &linhas, const Nome &secao)
{
    for (linhas.PulaAte('['); linhas.Proxima(); linhas.PulaAte('[')) {
        const auto titulo = SecaoDaLinha(linhas.Linha());
        if (titulo && secao.Casa(*titulo)) {
            return true;
        }
    }
    return false;
}

/// A section ends at the next heading. A new key goes behind the section's last line
/// that says something, before comments and empty lines; a new section goes to the end.
Lugar AchaChave(const Conteudo &conteudo, const QString &secao, const QString &chave)
{
    Linhas linhas(conteudo.bytes);
    if (!AchaSecao(linhas, Nome(conteudo, secao))) {
        const qsizetype fim = conteudo.bytes.size();
        return {false, {}, fim, fim};
    }
    const Nome nomeDaChave(conteudo, chave);
    qsizetype nova = linhas.Fim();
    while (linhas.Proxima() && !SecaoDaLinha(linhas.Linha())) {
        const auto nome = ChaveDaLinha(linhas.Linha());
        if (nome && nomeDaChave.Casa(*nome)) {
            return {true, linhas.Linha(), linhas.Inicio(), linhas.Fim()};
        }
        if (!SemBrancos(linhas.Linha()).isEmpty() && !EComentario(linhas.Linha())) {
            nova = linhas.Fim();
        }
    }
    return {true, {}, nova, nova};
}

/// One line without breaks, ending where a NUL stands.
QString UmaLinha(const QString &texto)
{
    QString linha = texto.left(texto.indexOf(QChar(u'\0')));
    return linha.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

/// A name as it can stand in the file: one line, no blanks around.
QString NomePedido(const QString &texto)
{
    QString nome = UmaLinha(texto);
    const auto branco = [](QChar c) { return EBranco(c.unicode()); };
    while (!nome.isEmpty() && branco(nome.back())) {
        nome.chop(1);
    }
    while (!nome.isEmpty() && branco(nome.front())) {
        nome.remove(0, 1);
    }
    return nome;
}

/// Whether a name can be read back once written, and forges no other.
bool NomeServe(const QString &secao, const QString &chave)
{
    const bool chaveBoa = !chave.isEmpty() && !chave.contains(QLatin1Char('=')) &&
                          !chave.startsWith(QLatin1Char(';')) && !chave.startsWith(QLatin1Char('['));
    return chaveBoa && !secao.isEmpty() && !secao.contains(QLatin1Char(']'));
}

/// The bytes of the file with one line changed or put in.
QByteArray ComAChave(const Conteudo &conteudo, const QString &secao, const QString &chave,
                     const QString &valor)
{
    const Lugar lugar = AchaChave(conteudo, secao, chave);
    const QByteArrayView texto = conteudo.bytes;
    QByteArray saida = conteudo.utf8 ? MarcaUtf8 : QByteArray();
    saida.reserve(texto.size() + texto.size() / 16 + 1024);
    JuntaLinhas(texto.first(lugar.inicio), saida);
    if (!lugar.temSecao) {
        saida.append('[' + conteudo.Bytes(secao) + "]\r\n");
    }
    // A key that is there keeps its spelling.
    saida.append(lugar.linha ? ChaveDaLinha(*lugar.linha)->toByteArray() : conteudo.Bytes(chave));
    saida.append('=' + conteudo.Bytes(valor) + "\r\n");
    JuntaLinhas(texto.sliced(lugar.fim), saida);
    return saida;
}

} // namespace

ProfileFile::ProfileFile(QString caminho) : m_caminho(std::move(caminho)) {}

QString ProfileFile::GetPrivateProfileString(const QString &secao, const QString &chave,
                                             const QString &padrao, int tamanho) const
{
    const int limite = std::max(0, tamanho - 1);
    const auto conteudo = LeArquivo(m_caminho);
    if (!conteudo) {
        return padrao.left(limite);
    }
    const Lugar lugar = AchaChave(*conteudo, NomePedido(secao), NomePedido(chave));
    const QString valor = lugar.linha ? conteudo->Texto(ValorDaLinha(*lugar.linha)) : padrao;
    return valor.left(limite);
}

std::optional<QList<std::pair<QString, QString>>>
ProfileFile::GetPrivateProfileSection(const QString &secao) const
{
    const auto conteudo = LeArquivo(m_caminho);
    if (!conteudo) {
        return std::nullopt;
    }
    QList<std::pair<QString, QString>> chaves;
    QSet<QString> vistas;
    Linhas linhas(conteudo->bytes);
    if (!AchaSecao(linhas, Nome(*conteudo, NomePedido(secao)))) {
        return chaves;
    }
    while (linhas.Proxima() && !SecaoDaLinha(linhas.Linha())) {
        const auto bytes = ChaveDaLinha(linhas.Linha());
        const QString nome = bytes ? conteudo->Texto(*bytes) : QString();
        if (nome.isEmpty() || NomePedido(nome) != nome || vistas.contains(UCase(nome))) {
            continue;
        }
        vistas.insert(UCase(nome));
        chaves.append({nome, conteudo->Texto(ValorDaLinha(linhas.Linha()))});
    }
    return chaves;
}

bool ProfileFile::WritePrivateProfileString(const QString &secao, const QString &chave,
                                            const QString &valor) const
{
    const QString nomeSecao = NomePedido(secao);
    const QString nomeChave = NomePedido(chave);
    const auto conteudo = LeArquivo(m_caminho);
    if (!conteudo || !NomeServe(nomeSecao, nomeChave)) {
        return false;
    }
    return GravaArquivo(m_caminho, ComAChave(*conteudo, nomeSecao, nomeChave, UmaLinha(valor)));
}

bool ProfileFile::CanBeRead() const
{
    const QByteArray nome = QFile::encodeName(m_caminho);
    const int fd = AbreArquivo(nome);
    if (fd < 0) {
        return Falta(nome);
    }
    close(fd);
    return true;
}

} // namespace plataforma
