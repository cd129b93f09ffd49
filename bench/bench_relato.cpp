// The log on its real screen: opening it with the total shown and the list painted, against the same columns
// read through the engine's own C interface; the memory that it takes; and its report written into a file,
// against the sqlite3 shell writing the same columns. Turn by turn. Usage: bench_relato [rows] [turns]
#include "device/Impressora.h"
#include "nucleo/Relogio.h"
#include "nucleo/Sistema.h"
#include "plataforma/ambiente/BinaryFile.h"
#include "plataforma/tela/Caixas.h"
#include "plataforma/tela/Lista.h"
#include "reports/LinhasDoLog.h"
#include "reports/Relato.h"
#include "reports/Relatorio.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <malloc.h>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <unistd.h>
#include <vector>

namespace {

using Relogio = std::chrono::steady_clock;

const char *const kColunas = "select StCancel, NRCH, Banco, V_CH, Data, Favor, \"Index\" from Log";

[[noreturn]] void Desiste(const QString &motivo)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(motivo));
    std::exit(1);
}

double Segundos(const std::function<void()> &acao)
{
    const auto inicio = Relogio::now();
    acao();
    return std::chrono::duration<double>(Relogio::now() - inicio).count();
}

double Mediana(std::vector<double> valores)
{
    std::sort(valores.begin(), valores.end());
    return valores[valores.size() / 2];
}

struct SemIndicador final : nucleo::Indicador {
    void Valor(int) override {}
    void Cor(std::uint32_t) override {}
};

// One office with its log.
struct Escritorio {
    explicit Escritorio(int linhas)
    {
        const QString programa = QStringLiteral(QX70_BIN_DIR "/qx70-banco");
        if (QProcess::execute(programa, {"cria", pasta.path()}) != 0 ||
            QProcess::execute(programa, {"semeia", pasta.path(), "--bancos", "5", "--cidades", "5",
                                         "--favorecidos", "50", "--cheques", QString::number(linhas)}) != 0)
            Desiste("the store could not be filled");
    }
    [[nodiscard]] QString Banco() const { return pasta.filePath("QX70.MDB"); }

    QTemporaryDir pasta;
    plataforma::Caixas mensagens;
    plataforma::OcupadoDaTela ocupado;
    SemIndicador indicador;
    nucleo::RelogioDaMaquina relogio;
    device::Impressora impressora{{}, mensagens, indicador, ocupado};
    nucleo::Sistema sistema{pasta.path(), mensagens, ocupado, relogio, impressora};
};

// Every value of the columns, looked at and forgotten. @return rows
qsizetype LeComOMotor(const QString &arquivo)
{
    sqlite3 *db = nullptr;
    sqlite3_stmt *comando = nullptr;
    if (sqlite3_open_v2(arquivo.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                        nullptr) != SQLITE_OK ||
        sqlite3_prepare_v2(db, kColunas, -1, &comando, nullptr) != SQLITE_OK)
        Desiste(sqlite3_errmsg(db));
    qsizetype linhas = 0;
    qsizetype bytes = 0;
    for (; sqlite3_step(comando) == SQLITE_ROW; ++linhas)
        for (int i = 0; i < 7; ++i) {
            bytes += sqlite3_column_text(comando, i) ? 1 : 0;
            bytes += sqlite3_column_bytes(comando, i);
        }
    sqlite3_finalize(comando);
    sqlite3_close(db);
    return bytes > 0 ? linhas : 0;
}

// Knows when a widget has been painted.
class Pintura final : public QObject {
public:
    explicit Pintura(QWidget *visor) { visor->installEventFilter(this); }
    void Espera()
    {
        const auto limite = Relogio::now() + std::chrono::seconds(60);
        while (!m_pintada) {
            QCoreApplication::processEvents();
            if (Relogio::now() > limite)
                Desiste("the list is not painted");
        }
    }

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        m_pintada = m_pintada || evento->type() == QEvent::Paint;
        return QObject::eventFilter(objeto, evento);
    }

private:
    bool m_pintada = false;
};

std::unique_ptr<reports::Relato> Abre(Escritorio &escritorio)
{
    auto tela = std::make_unique<reports::Relato>(escritorio.sistema, reports::Reimpressao{}, nullptr);
    tela->setAttribute(Qt::WA_DeleteOnClose, false);
    Pintura pintura(tela->findChild<plataforma::Lista *>(QStringLiteral("List1"))->viewport());
    tela->show();
    pintura.Espera();
    return tela;
}

void MedeAbertura(Escritorio &escritorio, int voltas)
{
    std::vector<double> nossos, deles;
    qsizetype linhas = 0;
    for (int i = 0; i < voltas; ++i) {
        deles.push_back(Segundos([&] { linhas = LeComOMotor(escritorio.Banco()); }));
        std::unique_ptr<reports::Relato> tela;
        nossos.push_back(Segundos([&] { tela = Abre(escritorio); }));
        const auto *lista = tela->findChild<plataforma::Lista *>(QStringLiteral("List1"));
        if (lista->Quantas() != linhas || tela->findChild<QLabel *>("Text1(5)")->text().isEmpty())
            Desiste("not all cheques are shown");
        tela->close();
    }
    std::printf("opening    %8lld rows: screen %8.2f ms, bare reading %8.2f ms, ratio %.2f\n",
                static_cast<long long>(linhas), Mediana(nossos) * 1e3, Mediana(deles) * 1e3,
                Mediana(nossos) / Mediana(deles));
}

qint64 Residente()
{
    malloc_trim(0);
    QFile arquivo(QStringLiteral("/proc/self/statm"));
    if (!arquivo.open(QIODevice::ReadOnly))
        Desiste("no memory figures");
    return arquivo.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

void MedeMemoria(Escritorio &escritorio)
{
    Abre(escritorio)->close(); // what every first screen takes
    const qint64 antes = Residente();
    const auto tela = Abre(escritorio);
    const int linhas = tela->findChild<plataforma::Lista *>(QStringLiteral("List1"))->Quantas();
    std::printf("memory     %8d rows: %.0f bytes a row\n", linhas,
                static_cast<double>(Residente() - antes) / linhas);
    tela->close();
}

// The report of the whole list into a file.
void EscreveRelatorio(const QString &arquivo, const reports::LinhasDoLog &linhas)
{
    reports::Pedido pedido;
    pedido.destino = reports::Destino::Arquivo;
    pedido.hoje = QStringLiteral("010203");
    reports::Relatorio relatorio(pedido, linhas.Quantas(),
                                 [&linhas](qint64 i) { return linhas.Linha(static_cast<int>(i)); });
    plataforma::BinaryFile saida(arquivo);
    while (const auto pagina = relatorio.ProximaPagina())
        saida.Put(*pagina);
    saida.Close();
}

void EscreveComOShell(const QString &banco, const QString &arquivo)
{
    QProcess shell;
    shell.setStandardOutputFile(arquivo);
    shell.start(QStringLiteral("sqlite3"), {"-list", banco, kColunas});
    if (!shell.waitForFinished(60000) || shell.exitCode() != 0)
        Desiste("the sqlite3 shell failed");
}

void MedeRelatorio(Escritorio &escritorio, int voltas)
{
    const QString nosso = escritorio.pasta.filePath("nosso.txt");
    const QString deles = escritorio.pasta.filePath("deles.txt");
    std::vector<double> shell, escrito, lidoEEscrito;
    int quantas = 0;
    for (int i = 0; i < voltas; ++i) {
        QFile::remove(nosso);
        QFile::remove(deles);
        shell.push_back(Segundos([&] { EscreveComOShell(escritorio.Banco(), deles); }));
        double soEscrito = 0;
        lidoEEscrito.push_back(Segundos([&] {
            const plataforma::Database banco(escritorio.Banco());
            const reports::LinhasDoLog linhas(*banco.OpenDynaset(QStringLiteral("Log")));
            quantas = linhas.Quantas();
            soEscrito = Segundos([&] { EscreveRelatorio(nosso, linhas); });
        }));
        escrito.push_back(soEscrito);
    }
    std::printf("report     %8d rows: %8.2f ms, with reading %8.2f ms, sqlite3 shell %8.2f ms, ratio %.2f, "
                "with reading %.2f\n",
                quantas, Mediana(escrito) * 1e3, Mediana(lidoEEscrito) * 1e3, Mediana(shell) * 1e3,
                Mediana(escrito) / Mediana(shell), Mediana(lidoEEscrito) / Mediana(shell));
}

} // namespace

int main(int quantos, char **argumentos)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacao(quantos, argumentos);
    const int linhas = quantos > 1 ? std::atoi(argumentos[1]) : 100000;
    const int voltas = quantos > 2 ? std::atoi(argumentos[2]) : 11;
    Escritorio escritorio(linhas);
    MedeMemoria(escritorio);
    MedeAbertura(escritorio, voltas);
    MedeRelatorio(escritorio, voltas);
    return 0;
}
