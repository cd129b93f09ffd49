// A cheque over the 9600-baud line: the time of the whole flow against the line time of its bytes, both ways,
// at 960 bytes a second. The simulated device keeps to the speed of the line and answers at once. Usage:
// bench_linha [cheques]
#include "cheques/RegrasDaImpressao.h"
#include "device/Fluxos.h"
#include "nucleo/Indicador.h"
#include "nucleo/Mensagens.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <vector>

namespace {

constexpr double kBytesPorSegundo = 960;
// What the device answers to each operation: one byte, then a frame of the result (02, length, type, number,
// result, check, 03).
constexpr double kBytesDaResposta = 1 + 10;

class Calada final : public nucleo::Mensagens, public nucleo::Indicador, public nucleo::Ocupado {
public:
    nucleo::Resposta MsgBox(const QString &texto, nucleo::Botoes, nucleo::Icone, const QString &) override
    {
        std::fprintf(stderr, "%s\n", texto.toUtf8().constData());
        return nucleo::Resposta::Ok;
    }
    void Valor(int) override {}
    void Cor(std::uint32_t) override {}
    void Comeca() override {}
    void Termina() override {}
};

} // namespace

int main(int quantos, char **argumentos)
{
    const int quantosCheques = quantos > 1 ? std::atoi(argumentos[1]) : 10;
    const QTemporaryDir pasta;
    QFile ini(pasta.filePath("QX70.INI"));
    if (!ini.open(QIODevice::WriteOnly))
        return 1;
    ini.write("[Formato]\r\n001=01,05,07,10,13,92,17,09,11,50,31,40,65    ; Banco\r\n");
    ini.close();
    const QString elo = pasta.filePath("COM2");
    const QString bytes = pasta.filePath("bytes");
    QProcess simulador;
    simulador.start(QStringLiteral(QX70_BIN_DIR "/qx70-simulador"),
                    {"--saida", pasta.filePath("documentos"), "--elo", elo, "--formatos", ini.fileName(),
                     "--bytes", bytes, "--velocidade", "--sem-figuras"});
    while (!QFileInfo::exists(elo))
        if (!simulador.waitForReadyRead(10000))
            return 1;
    qputenv("QX7032_COM2", elo.toLocal8Bit());

    Calada nada;
    device::Impressora impressora({QStringLiteral(QX70_BIN_DIR)}, nada, nada, nada);
    cheques::TextosDoCheque cheque{"001", "1.234,56", "Padaria", "Campinas", "21/11/26", "000123", {}};
    QString porta = QStringLiteral("COM2");
    std::vector<double> razoes;
    for (int i = 0; i <= quantosCheques; ++i) {
        const qint64 antes = QFileInfo(bytes).size();
        const auto inicio = std::chrono::steady_clock::now();
        const int resultado =
            device::EnviaChequeNormal(cheques::MontaTextosDoCheque(cheque), porta, impressora);
        const double segundos =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
        QFileInfo depois(bytes);
        depois.refresh();
        const double naLinha =
            (static_cast<double>(depois.size() - antes) + kBytesDaResposta) / kBytesPorSegundo;
        if (resultado != 1)
            return 1;
        if (i > 0)
            razoes.push_back(segundos / naLinha);
        std::printf("cheque %d: %.1f ms, line time %.1f ms\n", i, segundos * 1e3, naLinha * 1e3);
    }
    std::sort(razoes.begin(), razoes.end());
    std::printf("a cheque over the line: ratio %.3f (median), %.3f (worst)\n", razoes[razoes.size() / 2],
                razoes.back());
    simulador.terminate();
    simulador.waitForFinished(5000);
    return 0;
}
