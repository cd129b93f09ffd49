// See Aplicacao.h.
#include "app/Aplicacao.h"

#include "app/Main.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace app {

Aplicacao::Aplicacao(const QString &caminhoApp, const nucleo::Relogio &relogio)
    : m_impressora(device::PastasDaBiblioteca(caminhoApp), m_caixas, m_indicador, m_ocupado),
      m_sistema(caminhoApp, m_caixas, m_ocupado, relogio, m_impressora),
      m_main(std::make_unique<Main>(m_sistema))
{
    m_indicador.destino = m_main.get();
}

Aplicacao::~Aplicacao()
{
    m_indicador.destino = nullptr;
}

QString CaminhoDaInstalacao()
{
    const QString casa = qEnvironmentVariable("QX70_HOME");
    if (!casa.isEmpty())
        return QDir::cleanPath(QDir(casa).absolutePath());
    return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
}

void CarregaTraducao()
{
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    auto *tradutor = new QTranslator(qApp);
    if (tradutor->load(QStringLiteral("qtbase_pt_BR"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(tradutor);
}

} // namespace app
