// A settings file of sections and keys. Lines are kept as bytes, so that what is not understood stays as it
// is.
#include "plataforma/perfil/ProfileFile.h"

#include "plataforma/basico/Texto.h"

#include <algorithm>
#include <optional>
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QSaveFile>
#include <utility>

namespace plataforma {

namespace {

const QByteArray MarcaUtf8 = QByteArrayLiteral("\xEF\xBB\xBF");

/// The lines of a file, without their ends.
struct Conteudo {
    QList<QByteArray> linhas;
    bool utf8 = false; ///< some editor saved the file with the mark of UTF-8; it stays that way

    [[nodiscard]] QString Texto(const QByteArray &bytes) const
    {
        return utf8 ? QString::fromUtf8(bytes) : FromAnsi(bytes);
    }
    [[nodiscard]] QByteArray Bytes(const QString &texto) const
    {
        return utf8 ? texto.toUtf8() : ToAnsi(texto);
    }
    /// The form in which two names are compared: as the file would hold it, without regard to case.
    [[nodiscard]] QString Nome(const QString &nome) const { return UCase(Texto(Bytes(nome))); }
    [[nodiscard]] QString Nome(const QByteArray &nome) const { return UCase(Texto(nome)); }
};

bool EBranco(char16_t c)
{
    return c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == '\r';
}

QByteArray SemBrancos(const QByteArray &texto)
{
    qsizetype inicio = 0;
    qsizetype fim = texto.size();
    while (inicio < fim && EBranco(static_cast<unsigned char>(texto[inicio]))) {
        ++inicio;
    }
    while (fim > inicio && EBranco(static_cast<unsigned char>(texto[fim - 1]))) {
        --fim;
    }
    return texto.mid(inicio, fim - inicio);
}

Conteudo ConteudoDe(QByteArray bytes)
{
    Conteudo conteudo;
    if (bytes.startsWith(MarcaUtf8)) {
        conteudo.utf8 = true;
        bytes.remove(0, MarcaUtf8.size());
    }
    if (bytes.isEmpty()) {
        return conteudo;
    }
    conteudo.linhas = bytes.split('\n');
    if (conteudo.linhas.last().isEmpty()) {
        conteudo.linhas.removeLast();
    }
    for (QByteArray &linha : conteudo.linhas) {
        if (linha.endsWith('\r')) {
            linha.chop(1);
        }
    }
    return conteudo;
}

/// What the file holds; empty when there is none yet, nothing when it cannot be read.
std::optional<Conteudo> LeArquivo(const QString &caminho)
{
    const QFileInfo dados(caminho);
    if (!dados.exists()) {
        return Conteudo();
    }
    QFile arquivo(caminho);
    if (!dados.isFile() || !arquivo.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray bytes = arquivo.readAll();
    if (arquivo.error() != QFileDevice::NoError) {
        return std::nullopt;
    }
    return ConteudoDe(bytes);
}

bool GravaArquivo(const QString &caminho, const Conteudo &conteudo)
{
    QSaveFile arquivo(caminho);
    if (!arquivo.open(QIODevice::WriteOnly)) {
        return false;
    }
    QByteArray bytes = conteudo.utf8 ? MarcaUtf8 : QByteArray();
    for (const QByteArray &linha : conteudo.linhas) {
        bytes += linha + "\r\n";
    }
    return arquivo.write(bytes) == bytes.size() && arquivo.commit();
}

/// The name inside the brackets; none when the line opens no section.
std::optional<QByteArray> SecaoDaLinha(const QByteArray &linha)
{
    const QByteArray limpa = SemBrancos(linha);
    const qsizetype fim = limpa.indexOf(']');
    if (!limpa.startsWith('[') || fim < 0) {
        return std::nullopt;
    }
    return SemBrancos(limpa.mid(1, fim - 1));
}

bool EComentario(const QByteArray &linha)
{
    return SemBrancos(linha).startsWith(';');
}

/// The name before "="; none for a comment and for a line without "=".
std::optional<QByteArray> ChaveDaLinha(const QByteArray &linha)
{
    const qsizetype igual = linha.indexOf('=');
    if (igual < 0 || EComentario(linha)) {
        return std::nullopt;
    }
    return SemBrancos(linha.left(igual));
}

/// The value behind "=". Nothing but blanks was stored on purpose and is one blank.
QByteArray ValorDaLinha(const QByteArray &linha)
{
    const QByteArray cru = linha.mid(linha.indexOf('=') + 1);
    QByteArray valor = SemBrancos(cru);
    if (valor.isEmpty()) {
        return cru.contains(' ') ? QByteArray(" ") : QByteArray();
    }
    const char aspas = valor[0];
    if (valor.size() > 1 && (aspas == '"' || aspas == '\'') && valor.endsWith(aspas)) {
        valor = valor.mid(1, valor.size() - 2);
    }
    const qsizetype nulo = valor.indexOf('\0');
    return nulo < 0 ? valor : valor.left(nulo);
}

/// The lines of a section: its heading, and the line behind its last one.
struct Trecho {
    qsizetype titulo;
    qsizetype fim;
};

std::optional<Trecho> AchaSecao(const Conteudo &conteudo, const QString &secao)
{
    const QString procurada = conteudo.Nome(secao);
    std::optional<Trecho> trecho;
    for (qsizetype i = 0; i < conteudo.linhas.size(); ++i) {
        const auto nome = SecaoDaLinha(conteudo.linhas[i]);
        if (nome && trecho) {
            trecho->fim = i;
            break;
        }
        if (nome && conteudo.Nome(*nome) == procurada) {
            trecho = Trecho{i, conteudo.linhas.size()};
        }
    }
    return trecho;
}

/// The line of a key inside a section; -1 when there is none.
qsizetype AchaChave(const Conteudo &conteudo, const Trecho &trecho, const QString &chave)
{
    const QString procurada = conteudo.Nome(chave);
    for (qsizetype i = trecho.titulo + 1; i < trecho.fim; ++i) {
        const auto nome = ChaveDaLinha(conteudo.linhas[i]);
        if (nome && conteudo.Nome(*nome) == procurada) {
            return i;
        }
    }
    return -1;
}

/// Where a new key goes: behind the last line that says something, before comments and empty lines.
qsizetype LugarDaNova(const Conteudo &conteudo, const Trecho &trecho)
{
    qsizetype i = trecho.fim;
    while (i > trecho.titulo + 1 &&
           (SemBrancos(conteudo.linhas[i - 1]).isEmpty() || EComentario(conteudo.linhas[i - 1]))) {
        --i;
    }
    return i;
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

void PoeChave(Conteudo &conteudo, const QString &secao, const QString &chave, const QString &valor)
{
    const QByteArray fim = '=' + conteudo.Bytes(valor);
    auto trecho = AchaSecao(conteudo, secao);
    if (!trecho) {
        conteudo.linhas.append('[' + conteudo.Bytes(secao) + ']');
        trecho = Trecho{conteudo.linhas.size() - 1, conteudo.linhas.size()};
    }
    const qsizetype linha = AchaChave(conteudo, *trecho, chave);
    if (linha >= 0) {
        conteudo.linhas[linha] = *ChaveDaLinha(conteudo.linhas[linha]) + fim;
    } else {
        conteudo.linhas.insert(LugarDaNova(conteudo, *trecho), conteudo.Bytes(chave) + fim);
    }
}

} // namespace

ProfileFile::ProfileFile(QString caminho) : m_caminho(std::move(caminho)) {}

QString ProfileFile::GetPrivateProfileString(const QString &secao, const QString &chave,
                                             const QString &padrao, int tamanho) const
{
    const int limite = std::max(0, tamanho - 1);
    const auto conteudo = LeArquivo(m_caminho);
    const auto trecho = conteudo ? AchaSecao(*conteudo, NomePedido(secao)) : std::nullopt;
    const qsizetype linha = trecho ? AchaChave(*conteudo, *trecho, NomePedido(chave)) : -1;
    const QString valor = linha < 0 ? padrao : conteudo->Texto(ValorDaLinha(conteudo->linhas[linha]));
    return valor.left(limite);
}

bool ProfileFile::WritePrivateProfileString(const QString &secao, const QString &chave,
                                            const QString &valor) const
{
    const QString nomeSecao = NomePedido(secao);
    const QString nomeChave = NomePedido(chave);
    auto conteudo = LeArquivo(m_caminho);
    if (!conteudo || !NomeServe(nomeSecao, nomeChave)) {
        return false;
    }
    PoeChave(*conteudo, nomeSecao, nomeChave, UmaLinha(valor));
    return GravaArquivo(m_caminho, *conteudo);
}

} // namespace plataforma
