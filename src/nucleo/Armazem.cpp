// See Armazem.h.
#include "nucleo/Armazem.h"

#include "nucleo/Mensagens.h"
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/RuntimeError.h"

#include <QDir>

namespace nucleo {

using plataforma::RuntimeError;

namespace {
const QString kNaoEstaAberto = QStringLiteral("O banco de dados não está aberto.");
}

Armazem::Armazem(const QString &caminhoApp, const QString &arquivoDados, Mensagens &mensagens)
    : m_pasta(caminhoApp), m_arquivo(arquivoDados), m_mensagens(mensagens)
{
}

Armazem::~Armazem() = default;

QString Armazem::Caminho() const
{
    return m_pasta + QLatin1Char('/') + m_arquivo;
}

int Armazem::AbreBanco(int bancos, int favorecidos, int cidades, int log, int transferencia)
{
    const std::pair<int, QString> tabelas[] = {{bancos, QStringLiteral("Bancos")},
                                               {favorecidos, QStringLiteral("Favorecido")},
                                               {cidades, QStringLiteral("Cidade")},
                                               {log, QStringLiteral("Log")},
                                               {transferencia, QStringLiteral("Transferencia")}};
    const int seletores[] = {SelBancos, SelFavorecido, SelCidade, SelLog, SelTransferencia};
    try {
        QDir::setCurrent(m_pasta);
        m_banco = std::make_shared<plataforma::Database>(Caminho());
        for (int i = 0; i < 5; ++i)
            if (tabelas[i].first == 1)
                Abre(seletores[i], tabelas[i].second);
    } catch (const RuntimeError &falha) {
        if (falha.number() == plataforma::ErrLock) {
            m_mensagens.MsgBox(QString());
            m_mensagens.MsgBox(QStringLiteral("Instale uma linha semelhante a \n\"SHARE.EXE /L:500\" no seu "
                                              "arquivo autoexec.bat!"),
                               Botoes::Ok, Icone::Nenhum,
                               QStringLiteral("Programa \"share.exe\" nao instalado!"));
        }
        return kSemBanco;
    } catch (const std::exception &) {
        return kSemBanco;
    }
    return 0;
}

void Armazem::FechaBanco(int bancos, int favorecidos, int cidades, int log)
{
    if (bancos == 1)
        FechaConjunto(SelBancos);
    if (favorecidos == 1)
        FechaConjunto(SelFavorecido);
    if (cidades == 1)
        FechaConjunto(SelCidade);
    if (log == 1)
        FechaConjunto(SelLog);
}

void Armazem::Abre(int tabela, const QString &consulta)
{
    if (!m_banco)
        throw RuntimeError(plataforma::ErrObjectClosed, kNaoEstaAberto);
    m_conjuntos[tabela] = m_banco->OpenDynaset(consulta);
}

int Armazem::BuscaPorCodigo(const QString &chave, int tabela)
{
    const int alvo = TabelaDaBusca(tabela);
    Abre(alvo, ConsultaPorCodigo(chave, tabela));
    return m_conjuntos[alvo]->HasRows() ? 1 : 0;
}

void Armazem::FiltraRegistros(const QString &texto, int tabela)
{
    Abre(tabela, ConsultaDoFiltro(texto, tabela));
}

void Armazem::PesquisaRegistros(const QString &texto, int tabela)
{
    Abre(tabela, ConsultaDaPesquisa(texto, tabela));
}

QString Armazem::NomePorCodigo(const QString &codigo, int tabela)
{
    BuscaPorCodigo(codigo, tabela);
    return Conjunto(tabela).Field(QStringLiteral("Nome"));
}

QString Armazem::NomeBancoPorCodigo(const QString &codigo)
{
    if (BuscaPorCodigo(codigo, SelBancos) == 0)
        return QStringLiteral("Inexistente");
    return Conjunto(SelBancos).Field(QStringLiteral("Nome"));
}

QString Armazem::NomeCidadePorCodigo(const QString &codigo)
{
    return NomePorCodigo(codigo, SelCidade);
}

QString Armazem::NomeFavorecidoPorCodigo(const QString &codigo)
{
    if (BuscaPorCodigo(codigo, SelFavorecido) == 0)
        return {};
    return Conjunto(SelFavorecido).Field(QStringLiteral("Nome"));
}

plataforma::Dynaset &Armazem::Conjunto(int tabela)
{
    const auto achado = m_conjuntos.find(tabela);
    if (achado == m_conjuntos.end())
        throw RuntimeError(plataforma::ErrObjectClosed, QStringLiteral("A tabela não está aberta."));
    return *achado->second;
}

Armazem::Lote::Lote(Armazem &armazem) : m_banco(armazem.m_banco)
{
    if (!m_banco)
        throw RuntimeError(plataforma::ErrObjectClosed, kNaoEstaAberto);
    Abre();
}

Armazem::Lote::~Lote()
{
    m_banco->Rollback();
}

void Armazem::Lote::Abre()
{
    m_banco->BeginTrans();
}

void Armazem::Lote::Fecha()
{
    m_banco->CommitTrans();
}

QString ProximoIndex(plataforma::Dynaset &log)
{
    const QString dez = QStringLiteral("0000000000");
    log.MoveFirst();
    if (!log.HasRows() || log.Field(QStringLiteral("Codigo")).isEmpty())
        return plataforma::Format(1, dez);
    log.MoveLast();
    return plataforma::Format(plataforma::Val(log.Field(QStringLiteral("Index"))) + 1, dez);
}

QString TextoBancoNaoEncontrado(const QString &arquivo)
{
    return QStringLiteral("O Banco de dados \"%1\" nao foi encontrado!").arg(arquivo);
}

} // namespace nucleo
