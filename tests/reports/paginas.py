#!/usr/bin/env python3
"""Works out by itself, from the rules of the reports, the list lines, the pages and the general text that the
program must give for an invented log, and keeps them in dados/ beside it. All files are Windows-1252.

Usage: paginas.py             writes the files
       paginas.py --confere   fails when a stored file differs from what is worked out
"""

import hashlib
import pathlib
import sys

DADOS = pathlib.Path(__file__).resolve().parent / "dados"
HOJE = "05/03/07"
CODIFICACAO = "cp1252"

# ---- The invented log -----------------------------------------------------------------------------------------

QUANTOS = 73
FAVORECIDOS = [
    "Padaria São João Ltda.",
    "Construtora Irmãos Conceição & Associados S/A -",  # 47 characters, the most that the entry takes
    "",
    "Açougue do Zé",
    "Ótica Visão Nítida",
    "M",
    "Fundação Ágora | Praça da Sé",
]
NUMEROS = ["", " ", "1", "000123", "123456789012", "AB-77", "98765"]
CIDADES = ["São Paulo", "Mogi das Cruzes", "", "Niterói"]
BANCOS = {"001": "Banco do Sul", "033": "Banco Estação", "104": "", "237": "Crédito & Câmbio S/A"}
CODIGOS = ["001", "033", "104", "237", "999"]  # the last one is in no register
COMENTARIOS = [("", "", ""), ("Aluguel de março", "", ""), ("", "2ª via", ""), ("Um", "Dois", "Três"), ("", "", " ")]


def centavos_de(i):
    """Values from one cent to the largest that a column of the list holds."""
    marcos = {1: 1, 2: 50, 3: 999_999_999_999, 4: 100, 5: 123_456, 6: 100_000_000, 7: 99_999, 8: 100_000}
    return marcos.get(i, (i * i * 7919 + i * 104_729) % 10 ** (3 + i % 7) + 1)


def valor_guardado(centavos):
    """The stored form: no grouping, no zero that is not needed, but always the comma."""
    inteiro, resto = divmod(centavos, 100)
    decimais = f"{resto:02d}".rstrip("0")
    return f"{inteiro if inteiro else ''},{decimais}"


def cheques():
    for i in range(1, QUANTOS + 1):
        yield {
            "stCancel": "C" if i % 5 == 3 or i in (13, 26, 36, 37, 72) else " ",
            "nrch": NUMEROS[i % len(NUMEROS)],
            "banco": CODIGOS[i % len(CODIGOS)],
            "centavos": centavos_de(i),
            "vCh": valor_guardado(centavos_de(i)),
            "data": "" if i % 11 == 10 else f"{i % 28 + 1:02d}/{i % 12 + 1:02d}/{(95 + i) % 100:02d}",
            "favor": FAVORECIDOS[i % len(FAVORECIDOS)],
            "index": f"{i * 137:010d}",
            "local": CIDADES[i % len(CIDADES)],
            "comentarios": COMENTARIOS[i % len(COMENTARIOS)],
        }


# ---- List lines -----------------------------------------------------------------------------------------------


def com_pontos(centavos):
    return f"{centavos // 100:,}".replace(",", ".") + f",{centavos % 100:02d}"


def linha_do_log(c):
    linha = ("C |" if c["stCancel"] == "C" else "  |") + c["nrch"].rjust(12)
    linha += " | " + c["banco"] + " | " + com_pontos(c["centavos"]).rjust(16)
    linha += " | " + c["data"].ljust(8) + " | " + c["favor"].ljust(74) + c["index"].rjust(10)
    assert len(linha) == 138, linha
    return linha


def pedaco(linha, posicao, quantos):
    return linha[posicao - 1 : posicao - 1 + quantos]


def valor_da_linha(linha):
    return int(pedaco(linha, 24, 17).strip().replace(".", "").replace(",", ""))


# ---- Reports --------------------------------------------------------------------------------------------------

TITULO = "Relatorio de Cheques Impressos"
TOTAIS_RETOS = ("Total da página              |", "Total acumulado              |", "Total cancelados acumulados  |")
FORMAS = {
    "normal": {
        "colunas": 1,
        "margem": 12,
        "regua": 94,
        "regua da página": 94,
        "antes do título": 15,
        "antes de Pag": 12 + 20,
        "cabeçalho": "N. Cheque    | Bco | Valor            | Data     | Favorecido",
        "totais da página": TOTAIS_RETOS,
        "totais do fim": TOTAIS_RETOS,
    },
    "compacto": {
        "colunas": 3,
        "margem": 8,
        "regua": 107,
        "regua da página": 108,
        "antes do título": 15,
        "antes de Pag": 8 + 24,
        "cabeçalho": "N. Cheque   |Bco| Valor          |   N. Cheque   |Bco| Valor           |"
        "   N. Cheque   |Bco| Valor         |",
        "totais da página": TOTAIS_RETOS[:2] + ("Total cancelados acumalados  |",),
        "totais do fim": TOTAIS_RETOS,
    },
    "normal-impressora": {
        "colunas": 1,
        "margem": 2,
        "regua": 100,
        "regua da página": 100,
        "antes do título": 26,
        "antes de Pag": 26,
        "cabeçalho": "  N. Cheque    | Bco | Valor            | Data     | Favorecido",
        "totais da página": (
            "Total da página             :",
            "Total acumulado             :",
            "Total cancelados acumulados :",
        ),
        "totais do fim": ("Total da página            :", "Total acumulado            :", "Total cancelados acumulados:"),
    },
    "compacto-impressora": {
        "colunas": 2,
        "margem": 14,
        "regua": 72,
        "regua da página": 72,
        "antes do título": 13,
        "antes de Pag": 12,
        "cabeçalho": " |N. Cheque  |Bco| Valor           | |N. Cheque  |Bco| Valor           |",
        "totais da página": (
            "Total da página            :",
            "Total acumulado            :",
            "Total cancelados acumalados:",
        ),
        "totais do fim": ("Total da página            :", "Total acumulado            :", "Total cancelados acumulados:"),
    },
}


def paginas_do_relatorio(nome, linhas, por_pagina, fim):
    """The pages, each one text."""
    f = FORMAS[nome]
    margem = " " * f["margem"]
    # What begins a row of several cheques: where the pages go to the device or a file, 7 blanks that stand already
    # behind the row before, or behind the head; on paper the margin.
    atras = " " * 7 if nome == "compacto" else ""
    adiante = margem if nome == "compacto-impressora" else ""
    quantas_paginas = len(linhas) // por_pagina + (1 if len(linhas) % por_pagina else 0)

    def cabeca(pagina):
        regua = margem + "-" * f["regua"] + fim
        return (
            regua
            + margem + HOJE + " " * f["antes do título"] + TITULO + fim
            + " " * f["antes de Pag"] + f"Pag:{pagina:02d}/{quantas_paginas:02d}" + fim
            + regua
            + margem + f["cabeçalho"] + fim
            + regua
            + atras
        )

    def totais(titulos, valores):
        return "".join(margem + t + com_pontos(v).rjust(17) + fim for t, v in zip(titulos, valores))

    paginas, pagina, na_pagina, fechou = [], 1, 0, False
    da_pagina = acumulado = cancelados = 0
    texto = cabeca(pagina)
    for linha in linhas:
        fechou = False
        cancelado = linha[0] == "C"
        marca = "C|" if cancelado else " |"
        if nome == "normal":
            texto += ("   Cancelado" if cancelado else margem) + pedaco(linha, 4, 94) + fim
        elif nome == "normal-impressora":
            texto += margem + marca + pedaco(linha, 4, 94) + fim
        else:
            if na_pagina % f["colunas"] == 0:
                texto += adiante
            texto += marca + pedaco(linha, 4, 11) + "|" + pedaco(linha, 19, 3) + "|" + pedaco(linha, 24, 17) + "|"
        if cancelado:
            cancelados += valor_da_linha(linha)
        else:
            da_pagina += valor_da_linha(linha)
        na_pagina += 1
        if f["colunas"] > 1 and na_pagina % f["colunas"] == 0:
            texto += fim + atras
        if na_pagina == por_pagina:
            if na_pagina % f["colunas"]:
                texto += fim
            texto += margem + "-" * f["regua da página"] + fim
            acumulado += da_pagina
            texto += totais(f["totais da página"], (da_pagina, acumulado, cancelados))
            da_pagina, na_pagina, fechou = 0, 0, True
            paginas.append(texto)
            pagina += 1
            texto = cabeca(pagina)
    if na_pagina % f["colunas"]:
        texto += fim
    texto += margem + "-" * f["regua"] + fim
    if not fechou:
        acumulado += da_pagina
        texto += totais(f["totais do fim"], (da_pagina, acumulado, cancelados))
    return paginas + [texto]


# form, outlet, NumChkPgRel, numbers of cheques whose pages are kept whole
TODOS = [0, 1, 12, 13, 14, 26, 27, 36, 37, 72, 73, 500]
LF, CRLF = "\n", "\r\n"
RELATORIOS = [
    ("normal", "dispositivo", 55, [0, 13, 14]),
    ("normal", "arquivo", 55, [0, 1, 12, 13, 14, 26, 27]),
    ("compacto", "dispositivo", 55, [0, 1, 36, 37]),
    ("compacto", "arquivo", 55, [0, 1, 12, 13, 14, 36, 37]),
    ("normal", "impressora", 55, [0, 1, 13, 73]),
    ("normal", "impressora", 3, [0, 1, 12, 13]),
    ("normal", "impressora", 1, [1]),
    ("compacto", "impressora", 55, [0, 1, 12, 13]),
    ("compacto", "impressora", 3, [0, 1, 12, 13, 14]),
    ("compacto", "impressora", 1, [1]),
]


def com_digesto(quantos, paginas, inteiras):
    """The record of one list: its digest, and its pages where they are kept whole. A page is announced by its length
    in bytes and followed by a line end of its own."""
    bytes_das_paginas = [p.encode(CODIFICACAO) for p in paginas]
    digesto = hashlib.sha256(b"\0".join(bytes_das_paginas)).hexdigest()
    saida = [f"=== {quantos} entradas, {len(paginas)} paginas, sha256 {digesto}\n".encode()]
    if inteiras:
        for numero, pagina in enumerate(bytes_das_paginas, 1):
            saida.append(f"--- pagina {numero}, {len(pagina)} bytes\n".encode() + pagina + b"\n")
    return saida


def texto_dos_relatorios(forma, destino, ajuste, inteiros, linhas):
    nome = forma + ("-impressora" if destino == "impressora" else "")
    tamanho = {"normal": 13, "compacto": 36, "normal-impressora": ajuste, "compacto-impressora": ajuste * 2}[nome]
    saida = []
    for quantos in TODOS:
        paginas = paginas_do_relatorio(
            nome, [linhas[i % QUANTOS] for i in range(quantos)], tamanho, LF if destino == "dispositivo" else CRLF
        )
        saida += com_digesto(quantos, paginas, inteiras=quantos in inteiros)
    return b"".join(saida)


# ---- General text report --------------------------------------------------------------------------------------


def relatorio_geral(registros):
    texto = "Relatório Geral de Cheques Emitidos" + CRLF + CRLF
    for c in registros:
        nome = BANCOS.get(c["banco"], "Inexistente")
        texto += "   " + c["banco"] + " - " + nome + "  CH. Nº: " + c["nrch"] + CRLF
        texto += "Valor: " + com_pontos(c["centavos"]) + "   Loc.: " + c["local"] + "   Data: " + c["data"] + CRLF
        texto += "Fav.: " + c["favor"] + CRLF
        for comentario in c["comentarios"]:
            if comentario:
                texto += comentario + CRLF
        texto += "*" * 56 + CRLF
    return texto


# ---- Listings of the registers ----------------------------------------------------------------------------------

CIDADE = ("NºCidade  |Cidade                                    ", "||NºCidade  |Cidade                                 ")
BANCO = ("Nº Banco  |Banco                                     ", "||Nº Banco  |Banco                                  ")
# name, outlet: title, entries on a page, column heads
LISTAGENS = {
    ("cidade", "dispositivo"): ("Relatório de Cidades", 36, CIDADE),
    ("cidade", "impressora"): ("Relatório de Cidade", 50, CIDADE[:1]),
    ("favorecido", "dispositivo"): ("Relatório de Favorecidos", 16, ("NºFavorec.   |Favorecido",)),
    ("favorecido", "impressora"): ("Relatório de Favorecidos", 50, ("NºFavorec.|Favorecido",)),
    ("bancos", "dispositivo"): ("Relatório de Bancos", 36, BANCO),
    ("bancos", "impressora"): ("Relatório de Bancos", 50, BANCO[:1]),
}


def registros():
    """Codes and names of a register; some names fill a column of 39, of 42, or are longer than it."""
    longos = {5: "Ç" * 39, 6: "Á" * 42, 7: "Nome mais comprido do que a sua coluna, e por isso inteiro", 8: "x" * 43}
    return [(f"{i:05d}", longos.get(i, f"{FAVORECIDOS[i % len(FAVORECIDOS)]} {i}".strip())) for i in range(1, 101)]


def celula(cabecalho, registro):
    """One entry under its column head: "||" before it where the head has it, code and name as wide as theirs."""
    barras = "||" if cabecalho.startswith("||") else ""
    codigo, nome = cabecalho[len(barras) :].split("|")
    return barras + registro[0].ljust(len(codigo)) + "|" + registro[1].ljust(len(nome))


def paginas_da_listagem(destino, titulo, por_pagina, cabecalhos, rol):
    no_dispositivo = destino == "dispositivo"
    fim = LF if no_dispositivo else CRLF
    margem = " " * (12 if no_dispositivo else 0)
    # What begins a row; that of the first one belongs to the head.
    inicio = " " * (7 if no_dispositivo else 0)
    regua = margem + "-" * (107 if no_dispositivo else 76) + fim
    quantas_paginas = -(-len(rol) // por_pagina)

    def cabeca(pagina):
        return (
            regua
            + margem + HOJE + " " * 15 + titulo + fim
            + margem + " " * 24 + f"Pag:{pagina:02d}/{quantas_paginas:02d}" + fim
            + regua
            + margem + "".join(cabecalhos) + fim
            + inicio
        )

    paginas = []
    for primeiro in range(0, len(rol) + 1, por_pagina):
        da_pagina = rol[primeiro : primeiro + por_pagina]
        linhas = []
        for i in range(0, len(da_pagina), len(cabecalhos)):
            linhas.append("".join(map(celula, cabecalhos, da_pagina[i : i + len(cabecalhos)])))
        paginas.append(cabeca(len(paginas) + 1) + (fim + inicio).join(linhas) + (fim if linhas else ""))
    return paginas


def texto_das_listagens(destino, titulo, por_pagina, cabecalhos):
    saida = []
    for quantos in (0, 1, 2, por_pagina - 1, por_pagina, por_pagina + 1, 2 * por_pagina):
        paginas = paginas_da_listagem(destino, titulo, por_pagina, cabecalhos, registros()[:quantos])
        saida += com_digesto(quantos, paginas, inteiras=quantos in (0, 1, 2, por_pagina + 1))
    return b"".join(saida)


# ---- All files ------------------------------------------------------------------------------------------------


def tabela(linhas):
    return "".join("\t".join(linha) + "\n" for linha in linhas).encode(CODIFICACAO)


def arquivos():
    log = list(cheques())
    campos = ["stCancel", "nrch", "banco", "vCh", "data", "favor", "index", "local"]
    linhas = [linha_do_log(c) for c in log]
    saida = {
        "cheques.tsv": tabela([c[campo] for campo in campos] + list(c["comentarios"]) for c in log),
        "bancos.tsv": tabela(BANCOS.items()),
        "registros.tsv": tabela(registros()),
        "linhas.txt": tabela([linha] for linha in linhas),
        "geral-0.txt": relatorio_geral([]).encode(CODIFICACAO),
        "geral-1.txt": relatorio_geral(log[:1]).encode(CODIFICACAO),
        "geral-73.txt": relatorio_geral(log).encode(CODIFICACAO),
    }
    for forma, destino, ajuste, inteiros in RELATORIOS:
        sufixo = f"-{ajuste}" if destino == "impressora" else ""
        saida[f"{forma}-{destino}{sufixo}.txt"] = texto_dos_relatorios(forma, destino, ajuste, inteiros, linhas)
    for (nome, destino), (titulo, por_pagina, cabecalhos) in LISTAGENS.items():
        texto = texto_das_listagens(destino, titulo, por_pagina, cabecalhos)
        saida[f"lista-{nome}-{destino}.txt"] = texto
    return saida


def confere(esperados):
    faltas = [nome for nome, conteudo in esperados.items() if not (DADOS / nome).is_file()]
    faltas = [f"{nome}: is missing" for nome in faltas] + [
        f"{nome}: differs from what is worked out"
        for nome, conteudo in esperados.items()
        if (DADOS / nome).is_file() and (DADOS / nome).read_bytes() != conteudo
    ]
    faltas += [f"{a.name}: nothing works it out" for a in sorted(DADOS.iterdir()) if a.name not in esperados]
    for falta in faltas:
        print(falta)
    print(f"paginas: {len(esperados)} files, {len(faltas)} faults")
    return 1 if faltas else 0


def main(argumentos):
    if argumentos not in ([], ["--confere"]):
        print(__doc__, file=sys.stderr)
        return 2
    esperados = arquivos()
    if argumentos:
        return confere(esperados)
    DADOS.mkdir(exist_ok=True)
    for nome, conteudo in esperados.items():
        (DADOS / nome).write_bytes(conteudo)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
