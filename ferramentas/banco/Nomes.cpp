// Words that the invented data is made of. No bank here exists; the cities are cities of Brazil.
#include "Nomes.h"

#include <array>

namespace banco {

namespace {

constexpr std::array kComecosDeBanco{"Banco", "Crédito", "Poupança", "Casa", "Banco Novo"};

constexpr std::array kLugares{
    Lugar{"Serra", true},   Lugar{"Lagoa", true},     Lugar{"Pedra", true},      Lugar{"Ilha", true},
    Lugar{"Colina", true},  Lugar{"Enseada", true},   Lugar{"Várzea", true},     Lugar{"Chapada", true},
    Lugar{"Ponte", true},   Lugar{"Mata", true},      Lugar{"Fonte", true},      Lugar{"Aurora", true},
    Lugar{"Vale", false},   Lugar{"Campo", false},    Lugar{"Morro", false},     Lugar{"Riacho", false},
    Lugar{"Bosque", false}, Lugar{"Farol", false},    Lugar{"Pinhal", false},    Lugar{"Mirante", false},
    Lugar{"Atalho", false}, Lugar{"Planalto", false}, Lugar{"Horizonte", false}, Lugar{"Cais", false}};

constexpr std::array kQualidades{Qualidade{"Azul", "Azul"},       Qualidade{"Verde", "Verde"},
                                 Qualidade{"Claro", "Clara"},     Qualidade{"Dourado", "Dourada"},
                                 Qualidade{"Sereno", "Serena"},   Qualidade{"Antigo", "Antiga"},
                                 Qualidade{"Feliz", "Feliz"},     Qualidade{"Alegre", "Alegre"},
                                 Qualidade{"Celeste", "Celeste"}, Qualidade{"Florido", "Florida"}};

constexpr std::array kCidades{"São Paulo",
                              "Rio de Janeiro",
                              "Belo Horizonte",
                              "Porto Alegre",
                              "Curitiba",
                              "Florianópolis",
                              "Salvador",
                              "Recife",
                              "Fortaleza",
                              "São Luís",
                              "Belém",
                              "Manaus",
                              "Goiânia",
                              "Brasília",
                              "Vitória",
                              "Campo Grande",
                              "Cuiabá",
                              "João Pessoa",
                              "Maceió",
                              "Aracaju",
                              "Natal",
                              "Teresina",
                              "Palmas",
                              "Macapá",
                              "Boa Vista",
                              "Porto Velho",
                              "Rio Branco",
                              "Campinas",
                              "Santos",
                              "Ribeirão Preto",
                              "São Carlos",
                              "Araraquara",
                              "Sorocaba",
                              "Piracicaba",
                              "Bauru",
                              "Marília",
                              "Presidente Prudente",
                              "Londrina",
                              "Maringá",
                              "Ponta Grossa",
                              "Cascavel",
                              "Foz do Iguaçu",
                              "Joinville",
                              "Blumenau",
                              "Chapecó",
                              "Criciúma",
                              "Caxias do Sul",
                              "Pelotas",
                              "Passo Fundo",
                              "Santa Maria",
                              "Uruguaiana",
                              "Juiz de Fora",
                              "Uberlândia",
                              "Uberaba",
                              "Ouro Preto",
                              "Poços de Caldas",
                              "Montes Claros",
                              "Divinópolis",
                              "Sete Lagoas",
                              "Niterói",
                              "Petrópolis",
                              "Volta Redonda",
                              "Cabo Frio",
                              "Nova Friburgo",
                              "Feira de Santana",
                              "Ilhéus",
                              "Juazeiro do Norte",
                              "Sobral",
                              "Mossoró",
                              "Campina Grande",
                              "Caruaru",
                              "Olinda",
                              "Petrolina",
                              "Imperatriz",
                              "Santarém",
                              "Anápolis",
                              "Rondonópolis",
                              "Dourados",
                              "Corumbá",
                              "São José dos Campos"};

constexpr std::array kPrimeirosNomes{
    "Ana",     "Antônio",  "Beatriz", "Bruno",   "Carla",   "Cecília", "Conceição", "Daniel",
    "Débora",  "Eduardo",  "Elisa",   "Fabiana", "Felipe",  "Flávio",  "Gabriel",   "Helena",
    "Inês",    "Isabel",   "Joana",   "João",    "Joaquim", "José",    "Júlia",     "Laís",
    "Letícia", "Lúcia",    "Luís",    "Marcelo", "Márcia",  "Maria",   "Mateus",    "Mônica",
    "Otávio",  "Patrícia", "Paulo",   "Pedro",   "Raquel",  "Rogério", "Sebastião", "Vinícius"};

constexpr std::array kSobrenomes{
    "Abreu",   "Almeida",   "Alencar",  "Andrade",  "Araújo",   "Assunção", "Azevedo",   "Barbosa",
    "Brandão", "Camargo",   "Cardoso",  "Carvalho", "Castanho", "Coelho",   "Corrêa",    "Dias",
    "Esteves", "Falcão",    "Fagundes", "Fonseca",  "França",   "Galvão",   "Gonçalves", "Guimarães",
    "Leitão",  "Magalhães", "Medeiros", "Moraes",   "Nóbrega",  "Pacheco",  "Paixão",    "Peixoto",
    "Queirós", "Rezende",   "Sant'Ana", "Saraiva",  "Teixeira", "Valadão",  "Vilaça",    "Zanetti"};

constexpr std::array kRamos{"Padaria",          "Papelaria",     "Auto Peças",    "Materiais de Construção",
                            "Transportadora",   "Gráfica",       "Farmácia",      "Confecções",
                            "Açougue",          "Móveis",        "Serralheria",   "Imobiliária",
                            "Oficina Mecânica", "Contabilidade", "Distribuidora", "Livraria"};

constexpr std::array kComentarios{
    "Aluguel da loja",         "Nota fiscal conferida",    "Adiantamento de salário", "Compra de material",
    "Conserto da impressora",  "Frete e descarga",         "Segunda via a pedido",    "Serviço de limpeza",
    "Acordo com o fornecedor", "Parcela única, sem juros", "Reembolso de viagem",     "Manutenção do prédio"};

} // namespace

std::span<const char *const> ComecosDeBanco()
{
    return kComecosDeBanco;
}

std::span<const Lugar> Lugares()
{
    return kLugares;
}

std::span<const Qualidade> Qualidades()
{
    return kQualidades;
}

std::span<const char *const> NomesDeCidades()
{
    return kCidades;
}

std::span<const char *const> PrimeirosNomes()
{
    return kPrimeirosNomes;
}

std::span<const char *const> Sobrenomes()
{
    return kSobrenomes;
}

std::span<const char *const> Ramos()
{
    return kRamos;
}

std::span<const char *const> Comentarios()
{
    return kComentarios;
}

} // namespace banco
