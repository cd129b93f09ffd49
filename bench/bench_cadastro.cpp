// A register of 100,000 payees on its real screens: opening it, and one key in its search box until the list
// is filled and painted, each against the same rows read and copied through the engine's own C interface,
// turn by turn. Usage: bench_cadastro [rows] [turns]
#include "device/Impressora.h"
#include "nucleo/Relogio.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/Caixas.h"
#include "plataforma/tela/Lista.h"
#include "registers/Favorec.h"
#include "registers/Pesquisa.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <random>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace {

using Relogio = std::chrono::steady_clock;

[[noreturn]] void Desiste(const char *motivo)
{
    std::fprintf(stderr, "%s\n", motivo);
    std::exit(1);
}

struct SemIndicador final : nucleo::Indicador {
    void Valor(int) override {}
    void Cor(std::uint32_t) override {}
};

// --- The same through the engine's own interface ---

struct Copia {
    std::string bytes;
    std::vector<std::size_t> fins;
};

class Motor {
public:
    explicit Motor(const QByteArray &arquivo)
    {
        if (sqlite3_open_v2(arquivo.constData(), &m_db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                            nullptr) != SQLITE_OK)
            Desiste(sqlite3_errmsg(m_db));
    }
    ~Motor() { sqlite3_close(m_db); }
    Motor(const Motor &) = delete;
    Motor &operator=(const Motor &) = delete;

    /// Code and name of each row. @return rows
    qsizetype Le(const QByteArray &sql)
    {
        Copia copia;
        sqlite3_stmt *comando = Prepara(sql);
        while (sqlite3_step(comando) == SQLITE_ROW) {
            for (const int i : {0, 1}) {
                const auto *texto = reinterpret_cast<const char *>(sqlite3_column_text(comando, i));
                copia.bytes.append(texto, static_cast<std::size_t>(sqlite3_column_bytes(comando, i)));
                copia.fins.push_back(copia.bytes.size());
            }
        }
        sqlite3_finalize(comando);
        return static_cast<qsizetype>(copia.fins.size()) / 2;
    }
    void Executa(const char *sql)
    {
        if (sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
            Desiste(sqlite3_errmsg(m_db));
    }
    sqlite3_stmt *Prepara(const QByteArray &sql)
    {
        sqlite3_stmt *comando = nullptr;
        if (sqlite3_prepare_v2(m_db, sql.constData(), -1, &comando, nullptr) != SQLITE_OK)
            Desiste(sqlite3_errmsg(m_db));
        return comando;
    }

private:
    sqlite3 *m_db = nullptr;
};

void Semeia(const QByteArray &arquivo, int linhas)
{
    sqlite3 *vazio = nullptr;
    sqlite3_open(arquivo.constData(), &vazio);
    sqlite3_close(vazio);
    Motor motor(arquivo);
    motor.Executa("create table Favorecido (Codigo TEXT, Nome TEXT);"
                  "create index iFavorecidoCodigo on Favorecido (Codigo); begin");
    const char *const nomes[] = {"Maria",     "José",    "João",      "Ana",         "Antônio", "Álvaro",
                                 "Francisca", "Carlos",  "Paulo",     "Pedro",       "Lucas",   "Luiz",
                                 "Marcos",    "Beatriz", "Rafael",    "Padaria",     "Mercado", "Oficina",
                                 "Farmácia",  "Zélia",   "Conceição", "Construtora", "Júlia",   "Sebastião"};
    const char *const outros[] = {"da Silva", "Gonçalves", "de Souza", "Oliveira", "Conceição",
                                  "Pereira",  "Ltda.",     "& Filhos", "Araújo",   "do Nascimento"};
    std::mt19937 acaso(7);
    sqlite3_stmt *comando = motor.Prepara("insert into Favorecido values (printf('%05d', ?), ?)");
    for (int i = 0; i < linhas; ++i) {
        const std::string nome = std::string(nomes[acaso() % std::size(nomes)]) + ' ' +
                                 outros[acaso() % std::size(outros)] + ' ' +
                                 outros[acaso() % std::size(outros)] + ' ' + std::to_string(acaso() % 10000);
        sqlite3_bind_int(comando, 1, i);
        sqlite3_bind_text(comando, 2, nome.c_str(), -1, SQLITE_TRANSIENT);
        if (sqlite3_step(comando) != SQLITE_DONE)
            Desiste("the store could not be filled");
        sqlite3_reset(comando);
    }
    sqlite3_finalize(comando);
    motor.Executa("commit");
}

// --- The screens ---

// Knows when a list has been painted.
class Pintura final : public QObject {
public:
    explicit Pintura(QWidget *visor) { visor->installEventFilter(this); }
    /// Lets the screen work until the list is painted.
    void Espera()
    {
        const auto limite = Relogio::now() + std::chrono::seconds(20);
        while (!m_pintada) {
            QCoreApplication::processEvents();
            if (Relogio::now() > limite)
                Desiste("the list is not painted");
        }
    }
    void Esquece() { m_pintada = false; }

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        m_pintada = m_pintada || evento->type() == QEvent::Paint;
        return QObject::eventFilter(objeto, evento);
    }

private:
    bool m_pintada = false;
};

template <class T> T *Controle(QWidget &tela, const char *nome)
{
    T *controle = tela.findChild<T *>(QLatin1String(nome));
    if (!controle)
        Desiste(nome);
    return controle;
}

// One office with its store.
struct Escritorio {
    explicit Escritorio(int linhas) : arquivo(pasta.filePath("QX70.MDB").toUtf8())
    {
        Semeia(arquivo, linhas);
    }

    QTemporaryDir pasta;
    QByteArray arquivo;
    plataforma::Caixas mensagens;
    plataforma::OcupadoDaTela ocupado;
    SemIndicador indicador;
    nucleo::RelogioDaMaquina relogio;
    device::Impressora impressora{{}, mensagens, indicador, ocupado};
    nucleo::Sistema sistema{pasta.path(), mensagens, ocupado, relogio, impressora};
};

// A screen with a list, and the box in which its search is typed.
struct Tela {
    Tela(std::unique_ptr<QWidget> dela, const char *busca)
        : tela(std::move(dela)), lista(Controle<plataforma::Lista>(*tela, "List1")),
          caixa(Controle<QLineEdit>(*tela, busca)), pintura(lista->viewport())
    {
        tela->setAttribute(Qt::WA_DeleteOnClose, false);
        tela->show();
        pintura.Espera();
    }
    void Digita(QChar letra)
    {
        pintura.Esquece();
        QTest::sendKeyEvent(QTest::Click, caixa, letra.isNull() ? Qt::Key_Backspace : Qt::Key_unknown,
                            letra.isNull() ? QString() : QString(letra), Qt::NoModifier);
        pintura.Espera();
    }

    std::unique_ptr<QWidget> tela;
    plataforma::Lista *lista;
    QLineEdit *caixa;
    Pintura pintura;
};

using Abertura = std::function<std::unique_ptr<Tela>(Escritorio &)>;

std::unique_ptr<Tela> AbreFavorec(Escritorio &escritorio)
{
    return std::make_unique<Tela>(
        std::make_unique<registers::Favorec>(escritorio.sistema, registers::AbreSaida{}, nullptr), "Text2");
}

std::unique_ptr<Tela> AbrePesquisa(Escritorio &escritorio)
{
    escritorio.sistema.TipoPesquisa = nucleo::SelFavorecido;
    return std::make_unique<Tela>(
        std::make_unique<registers::Pesquisa>(escritorio.sistema, std::function<void(int)>{}, nullptr),
        "Text1");
}

// --- Measuring ---

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

struct Medida {
    std::vector<double> nossos, deles;
    void Mostra(const char *tela, const QString &oQue, qsizetype linhas) const
    {
        std::vector<double> razoes;
        std::transform(nossos.begin(), nossos.end(), deles.begin(), std::back_inserter(razoes),
                       std::divides());
        std::printf("%-8s %-8s %6lld rows: screen %6.2f ms, bare reading %6.2f ms, ratio of medians %.2f, "
                    "median of the ratios %.2f\n",
                    tela, qUtf8Printable(oQue), static_cast<long long>(linhas), Mediana(nossos) * 1e3,
                    Mediana(deles) * 1e3, Mediana(nossos) / Mediana(deles), Mediana(razoes));
    }
};

void MedeAbertura(const char *nome, Escritorio &escritorio, const Abertura &abre, int voltas)
{
    Medida medida;
    qsizetype linhas = 0;
    for (int i = 0; i < voltas; ++i) {
        medida.deles.push_back(Segundos([&] {
            Motor motor(escritorio.arquivo);
            linhas = motor.Le("select Codigo, Nome from Favorecido");
        }));
        std::unique_ptr<Tela> tela;
        medida.nossos.push_back(Segundos([&] { tela = abre(escritorio); }));
        if (tela->lista->Quantas() != linhas)
            Desiste("not all rows are shown");
        tela->tela->close();
    }
    medida.Mostra(nome, "opening", linhas);
}

// The query that means the same in the engine's own words.
QByteArray Consulta(const QString &texto, bool like)
{
    const QByteArray campo = texto.at(0).isDigit() ? "Codigo" : "Nome";
    const QByteArray valor = texto.toUtf8();
    const QByteArray condicao = like ? campo + " like '" + valor + "%'"
                                     : "substr(" + campo + ", 1, " + QByteArray::number(texto.size()) +
                                           ") = '" + valor + "' collate nocase";
    return "select Codigo, Nome from Favorecido where " + condicao + " order by " + campo + " collate nocase";
}

// The last key of a text, behind the ones before it; the empty text is left by the key that takes the last
// letter away.
void MedeTecla(const char *nome, Escritorio &escritorio, Tela &tela, const QString &texto, bool like,
               int voltas)
{
    Motor motor(escritorio.arquivo);
    Medida medida;
    qsizetype linhas = 0;
    const QString antes = texto.isEmpty() ? QStringLiteral("m") : texto.chopped(1);
    const QChar tecla = texto.isEmpty() ? QChar() : texto.back();
    const QByteArray consulta =
        texto.isEmpty() ? QByteArray("select Codigo, Nome from Favorecido") : Consulta(texto, like);
    for (int i = 0; i < voltas; ++i) {
        medida.deles.push_back(Segundos([&] { linhas = motor.Le(consulta); }));
        tela.caixa->setText(antes);
        QCoreApplication::processEvents();
        medida.nossos.push_back(Segundos([&] { tela.Digita(tecla); }));
        if (tela.caixa->text() != texto || tela.lista->Quantas() != linhas)
            Desiste("the list does not hold what was sought");
    }
    medida.Mostra(nome, '"' + texto + '"', linhas);
}

void Mede(const char *nome, Escritorio &escritorio, const Abertura &abre, bool like, int voltas)
{
    MedeAbertura(nome, escritorio, abre, voltas);
    const std::unique_ptr<Tela> tela = abre(escritorio);
    for (const char *texto : {"m", "mar", "1", "123", ""})
        MedeTecla(nome, escritorio, *tela, QString::fromUtf8(texto), like, voltas);
    tela->tela->close();
}

} // namespace

int main(int quantos, char **argumentos)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacao(quantos, argumentos);
    const int linhas = quantos > 1 ? std::atoi(argumentos[1]) : 100000;
    const int voltas = quantos > 2 ? std::atoi(argumentos[2]) : 21;
    Escritorio escritorio(linhas);
    Mede("Favorec", escritorio, AbreFavorec, false, voltas);
    Mede("Pesquisa", escritorio, AbrePesquisa, true, voltas);
    return 0;
}
