// QX70.INI with other layouts of banks: written beside it, whole or not at all.
#include "IniNovo.h"

#include "Console.h"
#include "Loja.h"
#include "nucleo/QX_INI.h"
#include "plataforma/perfil/ProfileFile.h"

#include <cstdio>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace banco {

namespace {

bool Renomeia(const QString &de, const QString &para)
{
    return std::rename(QFile::encodeName(de).constData(), QFile::encodeName(para).constData()) == 0;
}

} // namespace

IniNovo::IniNovo(const QString &pasta)
    : m_destino(ArquivoNaPasta(pasta, QLatin1String(kNomeDoIni))),
      m_oficina(QDir(pasta).filePath(QStringLiteral(".qx70-banco-XXXXXX"))),
      m_novo(m_oficina.filePath(QLatin1String(kNomeDoIni))),
      m_antigo(m_oficina.filePath(QStringLiteral("antigo.ini")))
{
    if (!m_oficina.isValid() || !PodeSerTrocado() || !CopiaOAtual())
        throw Erro();
}

void IniNovo::EscreveFormato(const std::vector<ChaveDoFormato> &chaves)
{
    const plataforma::ProfileFile perfil(m_novo);
    Progresso progresso(QStringLiteral("Bancos"), std::ssize(chaves));
    qint64 feitos = 0;
    for (const auto &[codigo, valor] : chaves) {
        if (!perfil.WritePrivateProfileString(nucleo::kFormato, codigo, valor))
            throw Erro();
        progresso.Mostra(++feitos);
    }
}

void IniNovo::TomaOLugar()
{
    if (!QFileInfo::exists(m_novo))
        return;
    if (QFileInfo::exists(m_destino) && !QFile::copy(m_destino, m_antigo))
        throw Erro();
    if (!Renomeia(m_novo, m_destino))
        throw Erro();
    m_provisorio = true;
}

IniNovo::~IniNovo()
{
    if (!m_provisorio)
        return;
    if (QFileInfo::exists(m_antigo))
        Renomeia(m_antigo, m_destino);
    else
        QFile::remove(m_destino);
}

bool IniNovo::PodeSerTrocado() const
{
    const QFileInfo atual(m_destino);
    return !atual.exists() || (atual.isFile() && atual.isWritable());
}

bool IniNovo::CopiaOAtual() const
{
    return !QFileInfo::exists(m_destino) || QFile::copy(m_destino, m_novo);
}

plataforma::RuntimeError IniNovo::Erro() const
{
    return {plataforma::ErrOpen,
            QStringLiteral("O arquivo %1 não pode ser gravado. Verifique o disco e as permissões.")
                .arg(m_destino)};
}

} // namespace banco
