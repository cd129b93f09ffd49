// Command "importa": CSV files into the tables of a store, all lines of all of them or none.
#include "ArquivoCsv.h"
#include "Carga.h"
#include "Comandos.h"
#include "ConfereAchados.h"
#include "Console.h"
#include "Esquema.h"
#include "IniNovo.h"
#include "Leiaute.h"
#include "Loja.h"
#include "nucleo/QX_INI.h"
#include "OpcoesCsv.h"

#include <algorithm>
#include <memory>
#include <QDir>
#include <QFileInfo>
#include <SQLiteCpp/SQLiteCpp.h>
#include <vector>

namespace banco {

namespace {

using plataforma::ErrOpen;
using plataforma::RuntimeError;

const QString kFinal = QStringLiteral(".csv");

/// A file to read, and the table that takes it.
struct Fonte {
    const Tabela *tabela;
    QString caminho;
};
using Fontes = std::vector<Fonte>;

// The table that a file is called after; null when it is called after none.
const Tabela *TabelaDoArquivo(const QString &caminho)
{
    const QString nome = QFileInfo(caminho).fileName();
    return nome.endsWith(kFinal, Qt::CaseInsensitive) ? AchaTabela(nome.chopped(kFinal.size())) : nullptr;
}

RuntimeError ErroDoNome(const QString &caminho)
{
    return {ErrOpen,
            QStringLiteral("O arquivo %1 não tem o nome de uma tabela (%2). Mude o nome dele ou diga a "
                           "tabela com --tabela.")
                .arg(caminho, NomesDasTabelas())};
}

// All CSV files of a folder, in the order of the tables.
void JuntaPasta(const QString &pasta, Fontes &fontes)
{
    const QDir dir(pasta);
    const QStringList nomes =
        dir.entryList({QStringLiteral("*") + kFinal}, QDir::Files | QDir::Hidden, QDir::Name);
    if (nomes.isEmpty())
        throw RuntimeError(ErrOpen, QStringLiteral("A pasta %1 não tem nenhum arquivo .csv.").arg(pasta));
    for (const QString &nome : nomes) {
        if (!TabelaDoArquivo(nome))
            throw ErroDoNome(dir.filePath(nome));
    }
    for (const Tabela &tabela : Tabelas()) {
        for (const QString &nome : nomes) {
            if (TabelaDoArquivo(nome) == &tabela)
                fontes.push_back({&tabela, dir.filePath(nome)});
        }
    }
}

Fontes FontesDe(const OpcoesCsv &opcoes)
{
    Fontes fontes;
    for (const QString &lugar : opcoes.lugares) {
        if (QFileInfo(lugar).isDir()) {
            JuntaPasta(lugar, fontes);
            continue;
        }
        const Tabela *const tabela = opcoes.tabelas.empty() ? TabelaDoArquivo(lugar) : opcoes.tabelas.front();
        if (!tabela)
            throw ErroDoNome(lugar);
        fontes.push_back({tabela, lugar});
    }
    return fontes;
}

/// Everything that one call brings in.
class Importacao {
public:
    Importacao(SQLite::Database &loja, const OpcoesCsv &opcoes) : m_loja(loja), m_opcoes(opcoes) {}

    void Le(const Fontes &fontes)
    {
        for (const Fonte &fonte : fontes) {
            ArquivoCsv arquivo(fonte.caminho, m_opcoes.separador, m_opcoes.codificacao);
            CargaDe(*fonte.tabela).Le(arquivo);
        }
    }
    [[nodiscard]] const Faltas &AsFaltas() const { return m_faltas; }
    [[nodiscard]] std::vector<ChaveDoFormato> Formatos() const;
    void DizContas() const;

private:
    Carga &CargaDe(const Tabela &tabela);

    SQLite::Database &m_loja;
    const OpcoesCsv &m_opcoes;
    Faltas m_faltas;
    std::vector<std::unique_ptr<Carga>> m_cargas; ///< one a table, in the order of the files
};

Carga &Importacao::CargaDe(const Tabela &tabela)
{
    for (const auto &carga : m_cargas) {
        if (&carga->DaTabela() == &tabela)
            return *carga;
    }
    return *m_cargas.emplace_back(std::make_unique<Carga>(m_loja, tabela, m_faltas));
}

std::vector<ChaveDoFormato> Importacao::Formatos() const
{
    std::vector<ChaveDoFormato> chaves;
    for (const auto &carga : m_cargas)
        chaves.insert(chaves.end(), carga->Formatos().begin(), carga->Formatos().end());
    return chaves;
}

void Importacao::DizContas() const
{
    for (const auto &carga : m_cargas) {
        QString conta = ContaDeLinhas(NomeDe(carga->DaTabela()), carga->Linhas());
        if (carga->Completados() > 0)
            conta += QStringLiteral(" (%1 com zeros à esquerda)")
                         .arg(Quantos(carga->Completados(), "número completado", "números completados"));
        Diz(conta);
    }
}

// Whether the file says the same of a bank as its row.
bool MesmoFormato(const QString &noArquivo, const QString &daLinha)
{
    const TextoDoLeiaute a = LeFormato(noArquivo);
    const TextoDoLeiaute b = LeFormato(daLinha);
    return MesmoNome(a.nome, b.nome) &&
           std::equal(a.numeros.begin(), a.numeros.end(), b.numeros.begin(), b.numeros.end(), MesmoNumero);
}

void DizChaves(const QString &titulo, const QStringList &chaves)
{
    if (chaves.isEmpty())
        return;
    Diz(titulo);
    for (const QString &chave : chaves.mid(0, Faltas::kDitas))
        Diz(QStringLiteral("  ") + chave);
    if (chaves.size() > Faltas::kDitas)
        Diz(QStringLiteral("  e mais %1").arg(chaves.size() - Faltas::kDitas));
}

// The banks that came also have their place in QX70.INI, which is left as it is.
void DizOQueFaltaNoIni(const QString &pasta, const std::vector<ChaveDoFormato> &chaves)
{
    const QString ini = ArquivoNaPasta(pasta, QLatin1String(kNomeDoIni));
    const nucleo::QX_INI perfil(ini);
    QStringList faltam, outras;
    for (const auto &[codigo, valor] : chaves) {
        const QString atual = perfil.GravaIni(nucleo::kFormato, codigo);
        const QString linha = codigo + QLatin1Char('=') + valor;
        if (atual == nucleo::kAusente)
            faltam.append(linha);
        else if (!MesmoFormato(atual, valor))
            outras.append(linha);
    }
    if (faltam.isEmpty() && outras.isEmpty())
        return;
    DizChaves(QStringLiteral("Bancos importados sem chave na seção Formato de %1:").arg(ini), faltam);
    DizChaves(QStringLiteral("Bancos importados com outra chave na seção Formato de %1; a certa é:").arg(ini),
              outras);
    Diz(QStringLiteral("Para acertar, abra cada um no cadastro de bancos e clique em Alterar, ou ponha essas "
                       "linhas na seção Formato. Com --formato a importação mesma as escreve."));
}

bool ImportaTudo(SQLite::Database &loja, const Fontes &fontes, const OpcoesCsv &opcoes)
{
    // Enough for the rows of a usual log; a longer one goes to the disk in parts, within the same
    // transaction.
    loja.exec("PRAGMA cache_size=-65536");
    SQLite::Transaction transacao(loja, SQLite::TransactionBehavior::IMMEDIATE);
    Importacao importacao(loja, opcoes);
    importacao.Le(fontes);
    if (importacao.AsFaltas().Houve()) {
        for (const QString &palavra : importacao.AsFaltas().EmPalavras())
            Reclama(palavra);
        Reclama(QStringLiteral("Nada foi importado."));
        return false;
    }
    const std::vector<ChaveDoFormato> chaves = importacao.Formatos();
    if (opcoes.formato && !chaves.empty()) {
        IniNovo ini(opcoes.pasta);
        ini.EscreveFormato(chaves);
        ini.TomaOLugar();
        transacao.commit();
        ini.Mantem();
    } else {
        transacao.commit();
    }
    importacao.DizContas();
    if (opcoes.formato)
        Diz(QStringLiteral("QX70.INI: %1 na seção Formato")
                .arg(Quantos(std::ssize(chaves), "chave", "chaves")));
    else
        DizOQueFaltaNoIni(opcoes.pasta, chaves);
    return true;
}

QString RecusaDe(const OpcoesCsv &opcoes)
{
    if (opcoes.lugares.isEmpty())
        return QStringLiteral(
            "\"importa\" pede os arquivos CSV, ou a pasta deles, depois da pasta do banco de "
            "dados.");
    const bool umArquivo = opcoes.lugares.size() == 1 && !QFileInfo(opcoes.lugares.first()).isDir();
    if (opcoes.tabelas.size() > 1 || (!opcoes.tabelas.empty() && !umArquivo))
        return QStringLiteral("--tabela diz a tabela de um arquivo só.");
    return {};
}

} // namespace

int Importa(const QStringList &argumentos)
{
    OpcoesCsv opcoes;
    QString recusa = LeOpcoesCsv(QStringLiteral("importa"), argumentos, opcoes);
    if (recusa.isEmpty())
        recusa = RecusaDe(opcoes);
    if (!recusa.isEmpty())
        return ReclamaDaChamada(recusa);
    const Fontes fontes = FontesDe(opcoes);
    ExigePastaGravavel(opcoes.pasta);
    const QString caminho = ArquivoNaPasta(opcoes.pasta, QLatin1String(kNomeDaLoja));
    try {
        return ImportaTudo(*AbreLoja(caminho), fontes, opcoes) ? kFeito : kFalhou;
    } catch (const SQLite::Exception &erro) {
        throw ErroDaLoja(erro, caminho);
    }
}

} // namespace banco
