// The way of an event from the line to the paper and back.
#include "Simulador.h"

#include <QDir>

#include "Formatos.h"

namespace simulador {

namespace {
constexpr int kAntesDaQueda = 50;   // ms for the host to read what came before the hang-up
constexpr int kEsvaziaNoFim = 3000; // ms for the host to read the last answer
} // namespace

Simulador::Simulador(const Opcoes &opcoes, QObject *pai)
    : QObject(pai), m_opcoes(opcoes), m_arquivos(opcoes.saida, opcoes.figuras),
      m_fendaAutomatica(!opcoes.janela || opcoes.automatico)
{
    m_relogio.start();
    m_prazo.setSingleShot(true);
    connect(&m_prazo, &QTimer::timeout, this,
            [this] { Enfileira(m_decodificador.Espera(m_relogio.elapsed())); });
    m_esperaDaFenda.setSingleShot(true);
    connect(&m_esperaDaFenda, &QTimer::timeout, this, [this] {
        m_esperando = false;
        TrataPrimeiro(true);
    });
    connect(&m_porta, &Porta::Chegaram, this, &Simulador::RecebeBytes);
}

QString Simulador::Inicia()
{
    if (!m_arquivos.Falha().isEmpty())
        return m_arquivos.Falha();
    const MemoriaLida lida = LeMemoria(m_opcoes.memoria);
    m_dispositivo = Dispositivo(lida.memoria);
    m_dispositivo.PoeFalha(m_opcoes.falha);
    if (!lida.aviso.isEmpty())
        Q_EMIT Aviso(lida.aviso);
    for (const QString &falha : {CarregaFormatos(), AbreRegistroDeBytes()}) {
        if (!falha.isEmpty())
            return falha;
    }
    m_porta.PoeElo(m_opcoes.elo);
    m_porta.PoeVelocidadeReal(m_opcoes.velocidade);
    const QString falha = m_porta.Abre();
    if (!falha.isEmpty())
        return falha;
    SalvaMemoria();
    Q_EMIT Linha(QStringLiteral("pronto %1").arg(m_porta.Nome()));
    Q_EMIT MudouEstado();
    return {};
}

QString Simulador::CarregaFormatos()
{
    if (m_opcoes.formatos.isEmpty())
        return {};
    QFile arquivo(m_opcoes.formatos);
    if (!arquivo.open(QIODevice::ReadOnly))
        return QStringLiteral("O arquivo %1 não pôde ser lido: %2.")
            .arg(m_opcoes.formatos, arquivo.errorString());
    const FormatosLidos lidos = LeFormatos(arquivo.readAll());
    for (auto i = lidos.bancos.begin(); i != lidos.bancos.end(); ++i)
        m_dispositivo.PoeBanco(i.key(), i.value());
    for (const QString &aviso : lidos.avisos)
        Q_EMIT Aviso(aviso);
    return {};
}

QString Simulador::AbreRegistroDeBytes()
{
    if (m_opcoes.bytes.isEmpty())
        return {};
    m_bytes.setFileName(m_opcoes.bytes);
    if (m_bytes.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return {};
    return QStringLiteral("O arquivo %1 não pôde ser aberto: %2.").arg(m_opcoes.bytes, m_bytes.errorString());
}

void Simulador::RecebeBytes(const QByteArray &bytes)
{
    if (m_bytes.isOpen() && m_bytes.write(bytes) != bytes.size())
        Q_EMIT Aviso(
            QStringLiteral("Os bytes recebidos não puderam ser gravados em %1.").arg(m_opcoes.bytes));
    Enfileira(m_decodificador.Recebe(
        std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())), m_relogio.elapsed()));
}

void Simulador::Enfileira(const std::vector<qx7032::Evento> &eventos)
{
    m_fila.insert(m_fila.end(), eventos.begin(), eventos.end());
    const std::int64_t prazo = m_decodificador.Prazo();
    if (prazo < 0)
        m_prazo.stop();
    else
        m_prazo.start(static_cast<int>(std::max<std::int64_t>(1, prazo - m_relogio.elapsed())));
    Processa();
}

void Simulador::Processa()
{
    while (!m_ocupado && !m_encerrado && !m_fila.empty()) {
        m_ocupado = true;
        if (m_dispositivo.PedeDocumento(m_fila.front()) && !HaDocumento())
            EsperaDocumento();
        else
            TrataPrimeiro(false);
    }
}

void Simulador::EsperaDocumento()
{
    // The frame came whole, and the host hears so at once; only the paper is awaited.
    m_porta.Envia(QByteArray(1, qx7032::kRecebido));
    m_esperando = true;
    m_esperaDaFenda.start(m_opcoes.esperaDocumentoMs);
    Q_EMIT MudouEstado();
}

void Simulador::TrataPrimeiro(bool acusado)
{
    const qx7032::Evento evento = std::move(m_fila.front());
    m_fila.pop_front();
    const Reacao reacao = m_dispositivo.Recebe(evento, HaDocumento());
    if (!acusado)
        m_porta.Envia(reacao.imediata);
    if (reacao.tomouDocumento)
        m_naFenda = false;
    if (reacao.memoriaMudou)
        SalvaMemoria();
    Solta(reacao.documentos);
    if (reacao.lenta)
        QTimer::singleShot(m_opcoes.demoraMs, this, [this, reacao] { Conclui(reacao); });
    else
        Conclui(reacao);
}

void Simulador::Conclui(const Reacao &reacao)
{
    m_porta.Envia(reacao.final);
    Conta(reacao);
    if (reacao.queda) {
        QTimer::singleShot(kAntesDaQueda, this, &Simulador::ReabrePorta);
        return;
    }
    m_ocupado = false;
    Q_EMIT MudouEstado();
    if (m_opcoes.documentos > 0 && m_saidos >= m_opcoes.documentos)
        Encerra();
    else
        QTimer::singleShot(0, this, &Simulador::Processa);
}

void Simulador::Conta(const Reacao &reacao)
{
    if (reacao.comandoAno != 0)
        Q_EMIT Linha(QStringLiteral("comando ano %1").arg(reacao.comandoAno));
    if (reacao.resultado > 1)
        Q_EMIT Linha(QStringLiteral("recusado %1").arg(reacao.resultado));
    if (!reacao.aviso.isEmpty())
        Q_EMIT Aviso(reacao.aviso);
}

void Simulador::ReabrePorta()
{
    if (m_encerrado)
        return;
    m_decodificador = {};
    m_fila.clear();
    const QString falha = m_porta.Abre();
    if (!falha.isEmpty())
        Q_EMIT Aviso(falha);
    else
        Q_EMIT Linha(QStringLiteral("porta nova %1").arg(m_porta.Nome()));
    Conclui({});
}

void Simulador::Solta(const std::vector<Documento> &documentos)
{
    for (const Documento &documento : documentos) {
        const Arquivos::Gravado gravado = m_arquivos.Grava(documento);
        ++m_saidos;
        if (!gravado.falha.isEmpty())
            Q_EMIT Aviso(gravado.falha);
        Q_EMIT SaiuDocumento(documento, gravado.base);
        Q_EMIT Linha(QStringLiteral("documento %1").arg(gravado.base));
    }
}

void Simulador::SalvaMemoria()
{
    const QString falha = GravaMemoria(m_opcoes.memoria, m_dispositivo.MemoriaAtual());
    if (!falha.isEmpty())
        Q_EMIT Aviso(falha);
}

void Simulador::Encerra()
{
    if (std::exchange(m_encerrado, true))
        return;
    m_esperaDaFenda.stop();
    Solta(m_dispositivo.Encerra());
    SalvaMemoria();
    m_porta.Esvazia(kEsvaziaNoFim);
    m_porta.Fecha();
    Q_EMIT Terminou();
}

bool Simulador::HaDocumento() const
{
    return m_fendaAutomatica || m_naFenda;
}

Simulador::Fenda Simulador::EstadoDaFenda() const
{
    if (m_fendaAutomatica)
        return Fenda::Automatica;
    if (m_esperando)
        return Fenda::Esperando;
    return m_naFenda ? Fenda::Cheia : Fenda::Vazia;
}

void Simulador::InsereDocumento()
{
    m_naFenda = true;
    if (std::exchange(m_esperando, false)) {
        m_esperaDaFenda.stop();
        TrataPrimeiro(true);
    }
    Q_EMIT MudouEstado();
}

void Simulador::PoeFendaAutomatica(bool automatica)
{
    m_fendaAutomatica = automatica;
    if (automatica && m_esperando)
        InsereDocumento();
    Q_EMIT MudouEstado();
}

void Simulador::PoeFalha(const Falha &falha)
{
    m_dispositivo.PoeFalha(falha);
    Q_EMIT Linha(QStringLiteral("falha %1").arg(EscreveFalha(falha)));
    Q_EMIT MudouEstado();
}

QString Simulador::Obedece(const QString &linha)
{
    const QString comando = linha.simplified();
    const auto falha = comando.startsWith(QLatin1String("falha ")) ? LeFalha(comando.mid(6)) : std::nullopt;
    if (comando == QLatin1String("sair"))
        Encerra();
    else if (comando == QLatin1String("documento"))
        InsereDocumento();
    else if (falha)
        PoeFalha(*falha);
    else if (!comando.isEmpty())
        return QStringLiteral("O comando \"%1\" não existe. Use falha NOME[:N], documento ou sair.")
            .arg(comando);
    return {};
}

} // namespace simulador
