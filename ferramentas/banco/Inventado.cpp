// Invented registers and cheques. The same seed gives the same data on every machine.
#include "Inventado.h"

#include "Nomes.h"
#include "plataforma/basico/Formato.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>
#include <utility>

namespace banco {

namespace {

// Each kind draws from a row of its own, so that more banks do not change the payees.
enum Especie : quint32 { kDosBancos = 1, kDasCidades, kDosFavorecidos, kDosCheques };

std::mt19937 AcasoDe(quint32 semente, Especie especie)
{
    std::seed_seq mistura{semente, static_cast<quint32>(especie)};
    return std::mt19937(mistura);
}

// The standard distributions differ from library to library; the remainder does not.
int Entre(std::mt19937 &acaso, int menor, int maior)
{
    return menor + static_cast<int>(acaso() % static_cast<quint32>(maior - menor + 1));
}

template <typename T> const T &UmDe(std::mt19937 &acaso, std::span<const T> lista)
{
    return lista[acaso() % lista.size()];
}

template <typename T> void Embaralha(std::mt19937 &acaso, std::vector<T> &lista)
{
    for (std::size_t i = lista.size(); i > 1; --i)
        std::swap(lista[i - 1], lista[acaso() % i]);
}

std::string Digitos(int casas, qint64 numero)
{
    std::array<char, 24> texto{};
    std::snprintf(texto.data(), texto.size(), "%0*lld", casas, static_cast<long long>(numero));
    return texto.data();
}

std::vector<BancoInventado> PrimeirosBancos()
{
    return {{"001", QStringLiteral("Banco Serra Azul"), {1, 5, 7, 10, 13, 92, 17, 9, 11, 50, 31, 40, 65}},
            {"002", QStringLiteral("BANCO DO LITORAL"), {2, 4, 6, 9, 12, 88, 20, 5, 8, 45, 28, 35, 58}},
            {"003", QStringLiteral("Banco Vale Verde"), {3, 6, 8, 11, 14, 95, 24, 6, 12, 55, 26, 33, 52}}};
}

QStringList NomesDeBancos(std::mt19937 &acaso)
{
    std::vector<QString> nomes;
    for (const char *comeco : ComecosDeBanco()) {
        for (const Lugar &lugar : Lugares()) {
            for (const Qualidade &qualidade : Qualidades())
                nomes.push_back(
                    QStringLiteral("%1 %2 %3")
                        .arg(QString::fromUtf8(comeco), QString::fromUtf8(lugar.nome),
                             QString::fromUtf8(lugar.feminino ? qualidade.feminino : qualidade.masculino)));
        }
    }
    Embaralha(acaso, nomes);
    return {nomes.begin(), nomes.end()};
}

// Lines go down in order. The city has room for 20 characters before the day, the month for the longest name
// before the year, and a year of four digits ends before column 120.
Leiaute SorteiaLeiaute(std::mt19937 &acaso)
{
    const int l1 = Entre(acaso, 1, 3);
    const int l2 = Entre(acaso, 4, 6);
    const int l3 = l2 + 2;
    const int l4 = l3 + Entre(acaso, 2, 3);
    const int l5 = l4 + Entre(acaso, 2, 3);
    const int c6 = Entre(acaso, 22, 28);
    const int c7 = c6 + Entre(acaso, 5, 8);
    const int c8 = c7 + Entre(acaso, 12, 20);
    return {l1,
            l2,
            l3,
            l4,
            l5,
            Entre(acaso, 84, 100),
            Entre(acaso, 12, 28),
            Entre(acaso, 2, 12),
            Entre(acaso, 4, 15),
            Entre(acaso, 40, 58),
            c6,
            c7,
            c8};
}

// Another one than `este`.
const char *OutroDe(std::mt19937 &acaso, std::span<const char *const> lista, const char *este)
{
    const char *outro = UmDe(acaso, lista);
    while (outro == este)
        outro = UmDe(acaso, lista);
    return outro;
}

std::string InventaPessoa(std::mt19937 &acaso)
{
    const char *sobrenome = UmDe(acaso, Sobrenomes());
    const std::string nome = std::string(UmDe(acaso, PrimeirosNomes())) + " " + sobrenome;
    return nome + (acaso() % 4 == 0 ? " de " : " ") + OutroDe(acaso, Sobrenomes(), sobrenome);
}

std::string InventaEmpresa(std::mt19937 &acaso)
{
    const std::string ramo = UmDe(acaso, Ramos());
    const std::string nome = UmDe(acaso, Sobrenomes());
    return ramo + " " + nome + (acaso() % 2 == 0 ? " Ltda." : " & Filhos");
}

} // namespace

std::vector<BancoInventado> InventaBancos(qint64 quantos, quint32 semente)
{
    std::mt19937 acaso = AcasoDe(semente, kDosBancos);
    std::vector<BancoInventado> bancos = PrimeirosBancos();
    std::set<Leiaute> usados;
    QStringList nomes = NomesDeBancos(acaso);
    for (const BancoInventado &banco : bancos) {
        usados.insert(banco.leiaute);
        nomes.removeAll(banco.nome);
    }
    while (std::ssize(bancos) < quantos) {
        Leiaute leiaute = SorteiaLeiaute(acaso);
        while (!usados.insert(leiaute).second)
            leiaute = SorteiaLeiaute(acaso);
        bancos.push_back({Digitos(3, std::ssize(bancos) + 1), nomes.takeFirst(), leiaute});
    }
    bancos.resize(static_cast<std::size_t>(quantos));
    return bancos;
}

std::vector<std::string> InventaCidades(qint64 quantas, quint32 semente)
{
    std::mt19937 acaso = AcasoDe(semente, kDasCidades);
    const auto conhecidas = NomesDeCidades();
    std::vector<std::string> cidades(conhecidas.begin(), conhecidas.end());
    Embaralha(acaso, cidades);
    for (qint64 numero = 1; std::ssize(cidades) < quantas; ++numero)
        cidades.push_back("Vila " + std::string(UmDe(acaso, Lugares()).nome) + " " + std::to_string(numero));
    cidades.resize(static_cast<std::size_t>(quantas));
    return cidades;
}

std::vector<std::string> InventaFavorecidos(qint64 quantos, quint32 semente)
{
    std::mt19937 acaso = AcasoDe(semente, kDosFavorecidos);
    std::vector<std::string> favorecidos;
    favorecidos.reserve(static_cast<std::size_t>(quantos));
    while (std::ssize(favorecidos) < quantos)
        favorecidos.push_back(acaso() % 3 == 0 ? InventaEmpresa(acaso) : InventaPessoa(acaso));
    return favorecidos;
}

Emissor::Emissor(Cadastro cadastro, qint64 total, QDate hoje, quint32 semente)
    : m_cadastro(std::move(cadastro)), m_total(total), m_hoje(hoje), m_acaso(AcasoDe(semente, kDosCheques)),
      // A dozen a day, or more where they would otherwise reach back over ten years.
      m_porDia(std::max<qint64>(12, total / 3650 + 1))
{
}

std::size_t Emissor::Sorteia(std::size_t quantos)
{
    return m_acaso() % quantos;
}

const ChequeInventado &Emissor::Proximo()
{
    DataDoCheque();
    ++m_ordem;
    m_cheque.indice = Digitos(10, m_ordem);
    m_cheque.codigo = m_cheque.indice.substr(5);
    m_cheque.banco = m_cadastro.bancos[Sorteia(m_cadastro.bancos.size())];
    ValorDoCheque();
    // An entry without a payee prints and logs a point.
    m_cheque.favorecido = UmaEm(200) ? "." : m_cadastro.favorecidos[Sorteia(m_cadastro.favorecidos.size())];
    m_cheque.local = m_cadastro.cidades[Sorteia(m_cadastro.cidades.size())];
    m_cheque.numero = UmaEm(20) ? " " : Digitos(6, m_ordem % 1'000'000);
    m_cheque.cancelado = UmaEm(50) ? "C" : " ";
    ComentariosDoCheque();
    return m_cheque;
}

void Emissor::DataDoCheque()
{
    const qint64 diasAtras = (m_total - 1 - m_ordem) / m_porDia;
    if (diasAtras == m_diasAtras)
        return;
    m_diasAtras = diasAtras;
    m_cheque.data = m_hoje.addDays(-diasAtras).toString(QStringLiteral("dd/MM/yy")).toStdString();
}

void Emissor::ValorDoCheque()
{
    constexpr std::array<std::size_t, 4> kFaixas{100'00, 1'000'00, 10'000'00, 250'000'00};
    std::size_t centavos = 1 + Sorteia(kFaixas[Sorteia(kFaixas.size())]);
    if (UmaEm(4))
        centavos = (centavos / 100 + 1) * 100;
    const double valor = static_cast<double>(centavos) / 100.0;
    m_cheque.valor = plataforma::Format(valor, QStringLiteral("###########.##")).trimmed().toStdString();
}

void Emissor::ComentariosDoCheque()
{
    m_cheque.deSerie = UmaEm(12);
    m_cheque.comentario = UmaEm(3) ? UmDe(m_acaso, Comentarios()) : "";
    m_cheque.comentario1 = UmaEm(10) ? UmDe(m_acaso, Comentarios()) : "";
    m_cheque.comentario2 = UmaEm(30) ? UmDe(m_acaso, Comentarios()) : "";
}

} // namespace banco
