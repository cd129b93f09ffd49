// Command "semeia": fills the empty tables of a store with invented data and writes the banks' layouts into
// QX70.INI, so that both agree. Either all of it is written or nothing.
#include "Comandos.h"
#include "Console.h"
#include "Esquema.h"
#include "IniNovo.h"
#include "Inventado.h"
#include "Loja.h"
#include "Opcoes.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace banco {

namespace {

using plataforma::ErrOpen;
using plataforma::RuntimeError;

/// Adds rows to one table; the values come in the order of its fields.
class Gravador {
public:
    Gravador(SQLite::Database &loja, std::string_view tabela)
        : m_comando(loja, ComandoDeInsercao(TabelaDe(tabela)))
    {
    }
    Gravador &Poe(const std::string &valor)
    {
        m_comando.bind(++m_campo, valor);
        return *this;
    }
    Gravador &PoeNada()
    {
        m_comando.bind(++m_campo);
        return *this;
    }
    void Grava()
    {
        m_comando.exec();
        m_comando.reset();
        m_campo = 0;
    }

private:
    SQLite::Statement m_comando;
    int m_campo = 0;
};

std::vector<ChaveDoFormato> ChavesDe(const std::vector<BancoInventado> &bancos)
{
    std::vector<ChaveDoFormato> chaves;
    chaves.reserve(bancos.size());
    for (const BancoInventado &banco : bancos)
        chaves.push_back({QString::fromStdString(banco.codigo), TextoDoFormato(banco.leiaute, banco.nome)});
    return chaves;
}

void ExigeVazia(SQLite::Database &loja, std::string_view tabela, qint64 aGravar, const QString &caminho)
{
    if (aGravar == 0 || EstaVazia(loja, TabelaDe(tabela)))
        return;
    throw RuntimeError(ErrOpen, QStringLiteral("A tabela %1 de %2 já tem registros e não foi tocada.")
                                    .arg(QString::fromUtf8(tabela), caminho));
}

void GravaBancos(SQLite::Database &loja, const std::vector<BancoInventado> &bancos)
{
    Gravador gravador(loja, "Bancos");
    for (const BancoInventado &banco : bancos) {
        gravador.Poe(banco.codigo).Poe(banco.nome.toStdString());
        for (const int numero : banco.leiaute)
            gravador.Poe(CampoDoLeiaute(numero));
        gravador.Grava();
    }
}

void GravaCodigosENomes(SQLite::Database &loja, std::string_view tabela,
                        const std::vector<std::string> &nomes)
{
    Gravador gravador(loja, tabela);
    int codigo = 0;
    for (const std::string &nome : nomes) {
        const QString texto = QStringLiteral("%1").arg(++codigo, 5, 10, QLatin1Char('0'));
        gravador.Poe(texto.toStdString()).Poe(nome).Grava();
    }
}

// What the register holds now, whoever wrote it; `seNenhum` where it is empty.
std::vector<std::string> CamposDe(SQLite::Database &loja, const std::string &consulta,
                                  const std::string &seNenhum)
{
    std::vector<std::string> valores;
    SQLite::Statement leitura(loja, consulta);
    while (leitura.executeStep())
        valores.push_back(leitura.getColumn(0).getString());
    if (valores.empty())
        valores.push_back(seNenhum);
    return valores;
}

void GravaCheque(Gravador &gravador, const ChequeInventado &cheque)
{
    gravador.Poe(cheque.indice).Poe(cheque.codigo).Poe(cheque.banco).Poe(cheque.valor);
    gravador.Poe(cheque.favorecido)
        .Poe(cheque.local)
        .Poe(cheque.data)
        .Poe(cheque.numero)
        .Poe(cheque.cancelado);
    if (cheque.deSerie)
        gravador.PoeNada().PoeNada().PoeNada();
    else
        gravador.Poe(cheque.comentario).Poe(cheque.comentario1).Poe(cheque.comentario2);
    gravador.Grava();
}

void GravaCheques(SQLite::Database &loja, const OpcoesDeSemeia &opcoes)
{
    Emissor emissor({CamposDe(loja, "SELECT \"Codigo\" FROM \"Bancos\" ORDER BY rowid", "001"),
                     CamposDe(loja, "SELECT \"Nome\" FROM \"Cidade\" ORDER BY rowid", "São Paulo"),
                     CamposDe(loja, "SELECT \"Nome\" FROM \"Favorecido\" ORDER BY rowid", "Maria Zanetti")},
                    opcoes.cheques, opcoes.hoje, static_cast<quint32>(opcoes.semente));
    Gravador gravador(loja, "Log");
    Progresso progresso(QStringLiteral("Cheques"), opcoes.cheques);
    for (qint64 feitos = 0; feitos < opcoes.cheques; progresso.Mostra(++feitos))
        GravaCheque(gravador, emissor.Proximo());
}

void GravaTudo(const OpcoesDeSemeia &opcoes, const QString &caminho)
{
    const auto semente = static_cast<quint32>(opcoes.semente);
    const std::vector<BancoInventado> bancos = InventaBancos(opcoes.bancos, semente);
    const auto loja = AbreLoja(caminho);
    SQLite::Transaction transacao(*loja, SQLite::TransactionBehavior::IMMEDIATE);
    ExigeVazia(*loja, "Bancos", opcoes.bancos, caminho);
    ExigeVazia(*loja, "Cidade", opcoes.cidades, caminho);
    ExigeVazia(*loja, "Favorecido", opcoes.favorecidos, caminho);
    ExigeVazia(*loja, "Log", opcoes.cheques, caminho);

    IniNovo ini(opcoes.pasta);
    ini.EscreveFormato(ChavesDe(bancos));
    GravaBancos(*loja, bancos);
    GravaCodigosENomes(*loja, "Cidade", InventaCidades(opcoes.cidades, semente));
    GravaCodigosENomes(*loja, "Favorecido", InventaFavorecidos(opcoes.favorecidos, semente));
    GravaCheques(*loja, opcoes);
    ini.TomaOLugar();
    transacao.commit();
    ini.Mantem();
}

} // namespace

int Semeia(const QStringList &argumentos)
{
    OpcoesDeSemeia opcoes;
    const QString recusa = LeOpcoes(argumentos, opcoes);
    if (!recusa.isEmpty())
        return ReclamaDaChamada(recusa);
    ExigePastaGravavel(opcoes.pasta);
    const QString caminho = ArquivoNaPasta(opcoes.pasta, QLatin1String(kNomeDaLoja));
    try {
        GravaTudo(opcoes, caminho);
    } catch (const SQLite::Exception &erro) {
        throw ErroDaLoja(erro, caminho);
    }
    Diz(QStringLiteral("Semeados em %1: bancos %2, cidades %3, favorecidos %4, cheques %5.")
            .arg(caminho, QString::number(opcoes.bancos), QString::number(opcoes.cidades),
                 QString::number(opcoes.favorecidos), QString::number(opcoes.cheques)));
    return kFeito;
}

} // namespace banco
