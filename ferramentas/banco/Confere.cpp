// Command "confere": looks the store and the banks' layouts over, tells what is wrong and where, and mends
// nothing.
#include "Comandos.h"
#include "ConfereAchados.h"
#include "ConfereCadastros.h"
#include "ConfereLog.h"
#include "ConfereTabelas.h"
#include "Console.h"
#include "Leitura.h"
#include "Loja.h"
#include "nucleo/QX_INI.h"
#include "plataforma/perfil/ProfileFile.h"

#include <QFileInfo>
#include <SQLiteCpp/SQLiteCpp.h>

namespace banco {

namespace {

struct Pedido {
    QString pasta;
    bool tudo = false;
};

QString LePedido(const QStringList &argumentos, Pedido &pedido)
{
    for (const QString &palavra : argumentos) {
        if (palavra == QLatin1String("--tudo"))
            pedido.tudo = true;
        else if (palavra.startsWith(QLatin1String("--")))
            return QStringLiteral("\"confere\" não conhece a opção \"%1\".").arg(palavra);
        else if (palavra.isEmpty() || !pedido.pasta.isEmpty())
            return QStringLiteral("\"confere\" pede uma pasta só; \"%1\" sobra.").arg(palavra);
        else
            pedido.pasta = palavra;
    }
    return pedido.pasta.isEmpty() ? QStringLiteral("\"confere\" pede a pasta do banco de dados.") : QString();
}

void AvisaDaDemora(const QString &caminho)
{
    constexpr qint64 kGrande = 50 * 1024 * 1024;
    const qint64 bytes = QFileInfo(caminho).size();
    if (bytes >= kGrande)
        Reclama(
            QStringLiteral("Conferindo o arquivo inteiro (%1 MB); pode demorar.").arg(bytes / 1024 / 1024));
}

void ConfereIni(const QString &ini, Achados &achados)
{
    if (!QFileInfo::exists(ini))
        achados.Junta(Tipo::Configuracoes, [&] {
            return QStringLiteral("não há o arquivo %1; as posições dos bancos não foram comparadas.")
                .arg(ini);
        });
    else if (!plataforma::ProfileFile(ini).GetPrivateProfileSection(nucleo::kFormato))
        achados.Junta(Tipo::Arquivo, [&] {
            return QStringLiteral(
                       "o arquivo %1 não pode ser lido; as posições dos bancos não foram comparadas.")
                .arg(ini);
        });
}

/// How many rows each register has; -1 where they were not looked at.
struct Contagem {
    const char *tabela, *um, *varios;
    qint64 linhas = -1;
};

QString Resumo(const std::vector<Contagem> &contagens, const Achados &achados)
{
    QStringList partes;
    for (const Contagem &contagem : contagens)
        if (contagem.linhas >= 0)
            partes.append(Quantos(contagem.linhas, contagem.um, contagem.varios));
    const QString conferido = partes.isEmpty()
                                  ? QString()
                                  : QStringLiteral("Conferido: %1. ").arg(partes.join(QStringLiteral(", ")));
    const qint64 defeitos = achados.Defeitos();
    const qint64 avisos = achados.Avisos();
    const QString comAvisos =
        avisos > 0 ? QStringLiteral(", ") + Quantos(avisos, "aviso", "avisos") : QString();
    if (defeitos == 0)
        return conferido + QStringLiteral("Nada de errado") + comAvisos + QLatin1Char('.');
    return conferido + Quantos(defeitos, "defeito", "defeitos") + comAvisos + QLatin1Char('.');
}

qint64 ConfereLinhas(SQLite::Database &loja, const Tabela &tabela, const TabelaAchada &achada,
                     const QString &ini, Achados &achados)
{
    if (achada.nome.empty())
        return -1;
    if (!achada.temTodos) {
        achados.Junta(Tipo::NaoConferida, [&] {
            return QStringLiteral("as linhas da tabela %1 não foram conferidas, porque lhe faltam campos.")
                .arg(NomeDe(tabela));
        });
        return -1;
    }
    if (tabela.nome == "Log")
        return ConfereLog(loja, achada, achados);
    return ConfereCadastro(loja, tabela, achada, ini, achados);
}

void ConfereLoja(SQLite::Database &loja, const QString &ini, std::vector<Contagem> &contagens,
                 Achados &achados)
{
    ConfereArquivo(loja, achados);
    const std::vector<TabelaAchada> achadas = ConfereTabelas(loja, achados);
    for (Contagem &contagem : contagens)
        contagem.linhas =
            ConfereLinhas(loja, TabelaDe(contagem.tabela), AchadaDe(achadas, contagem.tabela), ini, achados);
}

// A damaged file is a finding; everything else that keeps the file from being read is none.
void ConfereTudo(const QString &caminho, const QString &ini, std::vector<Contagem> &contagens,
                 Achados &achados)
{
    if (const QFileInfo arquivo(caminho); arquivo.isFile() && arquivo.size() == 0) {
        achados.Junta(Tipo::Arquivo, [&] { return QStringLiteral("o arquivo %1 está vazio.").arg(caminho); });
        return;
    }
    try {
        const auto loja = AbreParaLer(caminho);
        AvisaDaDemora(caminho);
        ConfereLoja(*loja, ini, contagens, achados);
    } catch (const SQLite::Exception &erro) {
        if (!EstaDanificado(erro))
            throw ErroDeLeitura(erro, caminho);
        achados.Junta(Tipo::Arquivo, [&] {
            return QStringLiteral("o arquivo %1 não é um banco de dados ou está danificado (%2).")
                .arg(caminho, QString::fromUtf8(erro.what()));
        });
    }
}

} // namespace

int Confere(const QStringList &argumentos)
{
    Pedido pedido;
    const QString recusa = LePedido(argumentos, pedido);
    if (!recusa.isEmpty())
        return ReclamaDaChamada(recusa);
    const QString caminho = ArquivoNaPasta(pedido.pasta, QLatin1String(kNomeDaLoja));
    const QString ini = ArquivoNaPasta(pedido.pasta, QLatin1String(kNomeDoIni));
    std::vector<Contagem> contagens{{"Log", "cheque", "cheques"},
                                    {"Bancos", "banco", "bancos"},
                                    {"Transferencia", "banco de transferência", "bancos de transferência"},
                                    {"Favorecido", "favorecido", "favorecidos"},
                                    {"Cidade", "cidade", "cidades"},
                                    {"Script", "leiaute de cópia", "leiautes de cópia"}};
    Achados achados(pedido.tudo);
    ConfereTudo(caminho, ini, contagens, achados);
    ConfereIni(ini, achados);
    for (const QString &linha : achados.Linhas())
        Diz(linha);
    Diz(Resumo(contagens, achados));
    return achados.Defeitos() > 0 ? kDefeitos : kFeito;
}

} // namespace banco
