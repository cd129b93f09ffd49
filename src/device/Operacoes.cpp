// Loading of the Device Library: file, symbols and the texts of what can fail.
#include "device/Operacoes.h"

#include <dlfcn.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

namespace device {

namespace {

using Causa = FalhaDaBiblioteca::Causa;

const QString kConserto =
    QStringLiteral("Até lá nada é enviado à impressora. Copie o arquivo certo e tente de novo.");

QString UltimoErro()
{
    const char *erro = dlerror();
    return erro ? QString::fromLocal8Bit(erro) : QString();
}

QString TextoDeAusente(const QStringList &pastas)
{
    return QStringLiteral("O arquivo %1 não foi encontrado.\nProcurado em:\n%2\n%3")
        .arg(kArquivoDaBiblioteca, pastas.join(QLatin1Char('\n')), kConserto);
}

QString TextoDeInvalido(const QString &arquivo, const QString &detalhe)
{
    return QStringLiteral("O arquivo %1 não pôde ser carregado:\n%2\n%3").arg(arquivo, detalhe, kConserto);
}

QString TextoDeOperacaoAusente(const QString &arquivo, const QStringList &nomes)
{
    return QStringLiteral("Falta no arquivo %1 a operação:\n%2\n%3")
        .arg(arquivo, nomes.join(QStringLiteral(", ")), kConserto);
}

/// Binds the operations one by one and keeps the names of those that are not there.
class Ligador {
public:
    explicit Ligador(void *alca) : m_alca(alca) {}

    template <typename Funcao> void Liga(Funcao &ponteiro, const char *nome)
    {
        ponteiro = reinterpret_cast<Funcao>(dlsym(m_alca, nome));
        if (!ponteiro)
            m_faltam.append(QString::fromLatin1(nome));
    }
    [[nodiscard]] const QStringList &Faltam() const { return m_faltam; }

private:
    void *m_alca;
    QStringList m_faltam;
};

QStringList LigaOperacoes(void *alca, Operacoes &operacoes)
{
    Ligador ligador(alca);
    ligador.Liga(operacoes.IniciaPorta, "IniciaPorta");
    ligador.Liga(operacoes.FechaPorta, "FechaPorta");
    ligador.Liga(operacoes.TravaDoc, "TravaDoc");
    ligador.Liga(operacoes.FormataTX, "FormataTX");
    ligador.Liga(operacoes.KorvalenTX, "KorvalenTX");
    ligador.Liga(operacoes.ComandoTX, "ComandoTX");
    ligador.Liga(operacoes.ImprimeCheque, "ImprimeCheque");
    ligador.Liga(operacoes.ImprimeCampoX, "ImprimeCampoX");
    ligador.Liga(operacoes.IncluiBanco, "IncluiBanco");
    ligador.Liga(operacoes.IncluiFavorecido, "IncluiFavorecido");
    ligador.Liga(operacoes.ExcluiFavorecido, "ExcluiFavorecido");
    ligador.Liga(operacoes.CancelaRel, "CancelaRel");
    ligador.Liga(operacoes.AlteraMoeda, "AlteraMoeda");
    ligador.Liga(operacoes.ZeraConfig, "ZeraConfig");
    ligador.Liga(operacoes.MontaValor, "MontaValor");
    return ligador.Faltam();
}

} // namespace

Biblioteca::Biblioteca(QStringList pastas) : m_pastas(std::move(pastas)) {}

void Biblioteca::FechaBiblioteca::operator()(void *alca) const
{
    dlclose(alca);
}

QString Biblioteca::ProcuraArquivo() const
{
    for (const QString &pasta : m_pastas) {
        const QFileInfo arquivo(QDir(pasta), kArquivoDaBiblioteca);
        if (arquivo.exists())
            return arquivo.absoluteFilePath();
    }
    return {};
}

const Operacoes *Biblioteca::Recusa(Causa causa, const QString &texto)
{
    m_falha = FalhaDaBiblioteca{causa, texto};
    return nullptr;
}

const Operacoes *Biblioteca::Carrega()
{
    if (m_alca)
        return &m_operacoes;
    const QString arquivo = ProcuraArquivo();
    if (arquivo.isEmpty())
        return Recusa(Causa::ArquivoAusente, TextoDeAusente(m_pastas));
    Alca alca(dlopen(QFile::encodeName(arquivo).constData(), RTLD_NOW | RTLD_LOCAL));
    if (!alca)
        return Recusa(Causa::ArquivoInvalido, TextoDeInvalido(arquivo, UltimoErro()));
    Operacoes operacoes;
    if (const QStringList faltam = LigaOperacoes(alca.get(), operacoes); !faltam.isEmpty())
        return Recusa(Causa::OperacaoAusente, TextoDeOperacaoAusente(arquivo, faltam));
    m_operacoes = operacoes;
    m_alca = std::move(alca);
    m_falha.reset();
    return &m_operacoes;
}

QStringList PastasDaBiblioteca(const QString &caminhoApp)
{
    QStringList pastas{caminhoApp, QCoreApplication::applicationDirPath()};
    pastas.removeDuplicates();
    return pastas;
}

} // namespace device
