// qx70-banco: creates the store QX70.MDB, fills it, checks it, copies it, and exchanges its tables with CSV
// files.
#include "Comandos.h"
#include "Console.h"
#include "plataforma/basico/RuntimeError.h"

#include <array>
#include <exception>
#include <QFile>

namespace {

constexpr char kAjuda[] =
    R"(Uso: qx70-banco COMANDO ...

Cuida do banco de dados QX70.MDB, onde ficam os bancos, os favorecidos, as cidades e os cheques emitidos.

Comandos:
  cria PASTA|ARQUIVO.MDB
      Cria um banco de dados vazio, com todas as tabelas. Nunca grava por cima de um que já existe.

  semeia PASTA [opções]
      Enche o banco de dados da pasta com dados inventados, para conhecer o programa ou experimentá-lo, e
      escreve as posições dos bancos na seção Formato do QX70.INI da pasta. Só enche tabelas vazias.
      --bancos N        quantos bancos, de 0 a 999 (5)
      --cidades N       quantas cidades, de 0 a 99999 (12)
      --favorecidos N   quantos favorecidos, de 0 a 99999 (12)
      --cheques N       quantos cheques emitidos, de 0 a 10000000 (0)
      --semente S       número que escolhe os dados: com o mesmo número saem os mesmos (1)
      --hoje dd/mm/aa   data do último cheque (a data da máquina)

  confere PASTA [--tudo]
      Confere o banco de dados da pasta e as posições dos bancos no QX70.INI, e diz o que está errado e onde.
      Não conserta nada. De cada tipo de defeito mostra os 20 primeiros; com --tudo, todos.

  copia PASTA DESTINO
      Copia QX70.MDB e QX70.INI para outra pasta, que é criada se não existe, mesmo com o programa aberto. Confere a
      cópia antes de lhe dar o nome. Nunca grava por cima de um arquivo que já existe. Os arquivos de cópia dos
      cheques (cop*.*), as imagens e a configuração da porta não são copiados.

  exporta PASTA DESTINO [opções]
      Grava cada tabela do banco de dados num arquivo CSV da pasta DESTINO, para abrir numa planilha. Cria a
      pasta que falta; nunca grava por cima de um arquivo que já existe.
      --tabela NOME     só essa tabela; pode ser repetida (todas)
      --separador S     entre os campos: ";", "," ou tab (";")
      --codificacao C   windows-1252 ou utf-8 (windows-1252)

  importa PASTA ARQUIVO.csv...|PASTA_DE_CSV [opções]
      Acrescenta ao banco de dados as linhas dos arquivos CSV, cada um com o nome da sua tabela: todas ou, se
      alguma estiver errada, nenhuma. A primeira linha de cada arquivo tem os nomes dos campos. Feche antes o QX70.
      --tabela NOME     a tabela, quando o nome do arquivo não a diz (com um arquivo só)
      --separador S     ";", "," ou tab (o da primeira linha)
      --codificacao C   windows-1252 ou utf-8 (a que o arquivo mostra)
      --formato         escreve as posições dos bancos importados na seção Formato do QX70.INI

  --ajuda               mostra este texto

Resultado: 0 feito; 1 recusado ou falhou, e nada mudou; 2 chamada errada; 3 "confere" achou defeitos.
)";

struct Comando {
    const char *nome;
    int (*executa)(const QStringList &);
};

constexpr std::array kComandos{Comando{"cria", banco::Cria},       Comando{"semeia", banco::Semeia},
                               Comando{"confere", banco::Confere}, Comando{"copia", banco::Copia},
                               Comando{"exporta", banco::Exporta}, Comando{"importa", banco::Importa}};

int Executa(const QStringList &argumentos)
{
    if (argumentos.isEmpty())
        return banco::ReclamaDaChamada(QStringLiteral("Falta o comando."));
    if (argumentos.contains(QLatin1String("--ajuda"))) {
        banco::Diz(QString::fromUtf8(kAjuda).trimmed());
        return banco::kFeito;
    }
    for (const Comando &comando : kComandos) {
        if (argumentos.first() == QLatin1String(comando.nome))
            return comando.executa(argumentos.mid(1));
    }
    return banco::ReclamaDaChamada(QStringLiteral("Não existe o comando \"%1\".").arg(argumentos.first()));
}

} // namespace

int main(int argc, char **argv)
{
    QStringList argumentos;
    for (int i = 1; i < argc; ++i)
        argumentos.append(QFile::decodeName(argv[i]));
    try {
        return Executa(argumentos);
    } catch (const plataforma::RuntimeError &erro) {
        banco::Reclama(erro.text());
    } catch (const std::exception &erro) {
        banco::Reclama(QStringLiteral("Falha inesperada: %1.").arg(QString::fromLocal8Bit(erro.what())));
    }
    return banco::kFalhou;
}
