#include "demo/noms.h"

#include "core/modulo97.h"

using namespace Qt::StringLiterals;

namespace {

QStringList Liste(const char16_t* texte) { return QString::fromUtf16(texte).split(u", "_s); }

TOrigine Wallonne() {
  TOrigine o;
  o.Nationalite = u"Belge"_s;
  o.Poids = 640;
  o.Noms = Liste(
      u"ADAM, ANDRÉ, ANTOINE, BASTIN, BAUDOIN, BERNARD, BERTRAND, BODART, BODSON, BOUCHAT, BRASSEUR, "
      u"BURTON, CHARLIER, CLÉMENT, COLLARD, COLLETTE, COLLIGNON, COLLIN, CORNET, CUVELIER, DEFRENNE, "
      u"DELACROIX, DELCOURT, DELHAYE, DELOGNE, DELVAUX, DEMOULIN, DENIS, DETHIER, DEVILLERS, DEWEZ, "
      u"DIDIER, DOCQUIER, DOSSOGNE, DUBOIS, DUCHÊNE, DUMONT, DUPONT, DUPUIS, ÉTIENNE, EVRARD, FALLAY, "
      u"FERON, FIÉVET, FLAMEND, FOCANT, FONTAINE, FRANÇOIS, FRÉROTTE, GENETTE, GENOT, GEORGES, GÉRARD, "
      u"GILLARD, GILLES, GILLET, GILSON, GOFFIN, GOFFINET, GRÉGOIRE, GUILLAUME, GUSTIN, HANOT, HASTIR, "
      u"HAULOTTE, HENRARD, HENROTTE, HENRY, HERBIET, HERMAN, HOTTIAUX, HUBERT, JACQUEMIN, JACQUET, "
      u"JADIN, JADOT, JAMART, JASSOGNE, LALOUX, LAMBERT, LAMBERTZ, LAMBOT, LAMBOTTE, LAURENT, LEBRUN, "
      u"LECLERCQ, LECOCQ, LEFÈBVRE, LEJEUNE, LEMAIRE, LEROY, LIBERT, LIBOIS, LOUIS, MAHY, MALOTAUX, "
      u"MARCHAL, MARCHAND, MARÉCHAL, MARTIN, MASSART, MASSON, MATHIEU, MATHOT, MICHAUX, MICHEL, MINET, "
      u"MONIN, MOREAU, MOTTET, NÉLIS, NICOLAS, NOËL, PAQUET, PETIT, PETITJEAN, PIERARD, PIERLOT, PIETTE, "
      u"PIRET, PIRON, PIRSON, PONCELET, PONCIN, QUEVRIN, REMACLE, REMY, RENARD, RENAUD, RION, ROBERT, "
      u"ROLAND, ROSIÈRE, ROUSSEAU, SACRÉ, SERVAIS, SEVRIN, SIMON, SOHET, STASSART, STÉVENIN, THIRY, "
      u"THOMAS, THONON, TONGLET, TOUSSAINT, URBAIN, VERLAINE, VIGNERON, WARNANT, WARZÉE, WATHELET, "
      u"WAUTHIER, WILLEM, WILMET, WILMOTTE, DE WILDE, d'HARVENG");
  o.Filles = Liste(
      u"Emma, Léa, Louise, Chloé, Lucie, Camille, Manon, Juliette, Zoé, Clara, Alice, Eva, Jade, Lola, "
      u"Charlotte, Élise, Sarah, Inès, Margaux, Lina, Mila, Anaïs, Célia, Elena, Victoria, Olivia, Rose, "
      u"Romane, Julia, Maëlle, Océane, Noémie, Pauline, Apolline, Éloïse, Mathilde, Amandine, Capucine, "
      u"Marie, Justine, Laura, Elsa, Léonie, Nina, Agathe, Clémence, Émilie, Lilou, Lise, Ambre, Ella, "
      u"Louane, Constance, Héloïse, Marion, Adèle, Eléa, Maëlys, Alicia, Lisa");
  o.Garcons = Liste(
      u"Noah, Lucas, Nathan, Louis, Hugo, Gabriel, Arthur, Ethan, Tom, Théo, Mathis, Maxime, Victor, "
      u"Simon, Sacha, Nolan, Liam, Eliott, Robin, Antoine, Romain, Thomas, Samuel, Augustin, Timéo, "
      u"Aaron, Basile, Oscar, Jules, Martin, Baptiste, Benjamin, Cyril, Diego, Loris, Esteban, Mattéo, "
      u"Noé, Alexandre, Gaspard, Clément, Florian, Émile, Elias, Valentin, Guillaume, Achille, Léon, "
      u"Pierre, Adrien, Quentin, Loïc, Tristan, Axel, Kylian, Enzo, Rafaël, Célestin, Lorenzo, Gaëtan");
  o.Meres = Liste(
      u"Nathalie, Isabelle, Valérie, Sandrine, Stéphanie, Virginie, Céline, Caroline, Aurélie, Julie, "
      u"Sophie, Catherine, Laurence, Véronique, Anne, Bénédicte, Delphine, Christelle, Vinciane, Sabrina, "
      u"Laetitia, Élodie, Anne-Sophie, Marie-Laure, Cécile, Gaëlle, Emmanuelle, Françoise, Séverine, "
      u"Mélanie, Géraldine, Barbara, Vanessa, Audrey, Florence, Ingrid, Pascale, Jessica, Wivine, Muriel");
  o.Peres = Liste(
      u"Olivier, Frédéric, Christophe, Laurent, David, Vincent, Philippe, Nicolas, Michaël, Sébastien, "
      u"Jean-François, Grégory, Thierry, Marc, Pierre, Xavier, Fabrice, Cédric, Geoffrey, Bernard, Benoît, "
      u"Luc, Stéphane, Jérôme, Raphaël, Arnaud, François, Dimitri, Pascal, Jean-Marc, Didier, Ludovic, "
      u"Bertrand, Renaud, Maxime, Julien, Kevin, Samuel, Étienne, Yves");
  return o;
}

/// The other families, one line an origin: weight, share of French first names, family names, then the
/// first names of girls, boys, mothers and fathers.
struct TLigneOrigine {
  const char16_t *Nationalite, *Naissance;
  int Poids, PrenomsFrancais;
  const char16_t *Noms, *Filles, *Garcons, *Meres, *Peres;
};

constexpr TLigneOrigine kOrigines[] = {
    {u"Belge", u"", 80, 850,
     u"CLAES, CLAESSENS, DE MEULENAERE, DE SMET, DE VOS, JANSSENS, MERTENS, PEETERS, VAN CAUWENBERGHE, "
     u"VAN DAMME, VAN DEN BERGHE, VAN HOVE, VANDENBOSSCHE, VANDERLINDEN, VERHAEGEN, VERMEIREN, WILLEMS, "
     u"WOUTERS",
     u"Lotte, Elke, Femke, Hanne, Noor", u"Jef, Wout, Lars, Daan, Sven",
     u"Katrien, Griet, Ann, Sofie, Els, Tine, Ingrid", u"Koen, Bart, Wim, Dirk, Tom, Peter, Jan"},
    {u"Italienne", u"Agrigento", 60, 500,
     u"BRUNO, CAPPELLO, D'ANGELO, DI PIETRO, FERRARA, GALLO, LO PRESTI, MANCUSO, PARISI, RUSSO, SALVAGGIO, "
     u"TERRANOVA",
     u"Giulia, Chiara, Aurora, Elisa, Sofia, Alessia, Giorgia",
     u"Matteo, Luca, Alessio, Nino, Fabio, Gino, Lorenzo",
     u"Rosa, Antonella, Sabrina, Patrizia, Carmela, Laura",
     u"Salvatore, Giuseppe, Antonio, Marco, Calogero, Fabrizio"},
    {u"Portugaise", u"Braga", 20, 400, u"DA SILVA, DOS SANTOS, FERREIRA, GONÇALVES, PEREIRA",
     u"Beatriz, Inês, Carolina, Mariana, Matilde", u"Tiago, Rui, João, Miguel, Afonso",
     u"Maria José, Sandra, Paula, Fátima, Cristina", u"Carlos, Paulo, Manuel, Nuno, Fernando"},
    {u"Espagnole", u"Oviedo", 15, 550, u"FERNANDEZ, GARCIA, MORENO, ALVAREZ",
     u"Lucia, Carla, Alba, Nuria, Paula", u"Pablo, Diego, Javier, Alvaro, Hugo",
     u"Pilar, Montserrat, Ana, Cristina", u"José Luis, Antonio, Miguel, Juan"},
    {u"Marocaine", u"Nador", 50, 100,
     u"AÏT OUALI, AZZOUZI, BENALI, BOUHADDI, CHAKIR, EL AMRANI, EL KHATTABI, HADDOUCHI, OUARDI, ZEROUALI",
     u"Yasmine, Inès, Aya, Nour, Salma, Rania, Assia, Kenza",
     u"Mohamed, Adam, Ilyas, Rayan, Bilal, Amine, Youssef, Ayoub",
     u"Fatima, Samira, Naïma, Karima, Hanane, Loubna", u"Karim, Rachid, Mustapha, Hassan, Abdelkader, Saïd"},
    {u"Turque", u"Emirdağ", 25, 50, u"AYDIN, DEMIR, KAYA, KILIÇ, ŞAHIN, YILDIZ",
     u"Defne, Elif, Zeynep, Ecrin, Esma", u"Yiğit, Emir, Kerem, Mert, Eymen",
     u"Ayşe, Hatice, Emine, Gülay, Sevim", u"Mehmet, Ali, Hüseyin, Murat, Osman"},
    {u"Congolaise", u"Kinshasa", 35, 350, u"ILUNGA, KABONGO, KALALA, MBUYI, MUKENDI, NGOY, TSHIBANDA, LUKUSA",
     u"Grâce, Exaucée, Merveille, Divine, Plamedie, Gloria",
     u"Christian, Daniel, Emmanuel, Jonathan, Samuel, Glody", u"Béatrice, Mamie, Solange, Clarisse, Chantal",
     u"Jean-Claude, Dieudonné, Patrick, Célestin, Trésor"},
    {u"Rwandaise", u"Kigali", 8, 500, u"HABIMANA, MUGISHA, UWIMANA", u"Keza, Ornella, Teta, Gaëlla",
     u"Yvan, Bruce, Kenny, Christian", u"Jeannette, Espérance, Immaculée, Solange",
     u"Jean-Bosco, Innocent, Aimable"},
    {u"Guinéenne", u"Conakry", 12, 80, u"BAH, BARRY, DIALLO, SOW", u"Aïssatou, Mariama, Kadiatou, Fatoumata",
     u"Ibrahima, Mamadou, Alpha, Thierno, Ousmane", u"Fatoumata, Oumou, Hadja, Aminata",
     u"Mamadou, Abdoulaye, Amadou"},
    {u"Polonaise", u"Białystok", 15, 250, u"KOWALCZYK, NOWAK, OSTROWSKI, WÓJCIK",
     u"Zofia, Maja, Oliwia, Hanna", u"Jakub, Kacper, Szymon, Filip", u"Agnieszka, Katarzyna, Małgorzata",
     u"Piotr, Marcin, Tomasz"},
    {u"Roumaine", u"Iași", 15, 200, u"IONESCU, POPESCU, ȘTEFĂNESCU, MOLDOVAN",
     u"Ioana, Elena, Andreea, Daria", u"Andrei, Mihai, Ștefan, David", u"Mihaela, Alina, Gabriela",
     u"Ionuț, Cristian, Florin"},
    {u"Kosovare", u"Prizren", 10, 150, u"BERISHA, GASHI, KRASNIQI", u"Arta, Elira, Dea, Rina",
     u"Dren, Leon, Erion, Rron", u"Vjosa, Teuta, Shpresa", u"Agim, Besnik, Arben"},
    {u"Vietnamienne", u"Hué", 8, 400, u"NGUYEN, PHAM, TRAN", u"Thi Mai, Linh, Kim Anh, Ngoc",
     u"Minh, Duc, Quang, Bao", u"Thi Hoa, Thi Lan, Thu Huong", u"Van Hung, Quoc Tuan, Thanh"},
    {u"Syrienne", u"Alep", 10, 50, u"AL KHATIB, HADDAD, AL ALI", u"Rima, Leila, Sham, Naya",
     u"Omar, Anas, Zaid, Karam", u"Rasha, Mariam, Rim", u"Khaled, Ahmad, Nabil"},
};

TLocalite Localite(const char16_t* nom, int code, int poids, const char16_t* rues) {
  return {QString::fromUtf16(nom), code, poids, Liste(rues)};
}

std::vector<TLocalite> AutourDeBrumeval() {
  return {
      Localite(
          u"Brumeval", 5537, 520,
          u"rue du Vieux Moulin, rue de l'Église, rue de la Station, place Communale, rue des Tanneurs, "
          u"avenue Reine Astrid, chaussée de Vesperval, chaussée de Dinant, rue Saint-Martin, rue Haute, "
          u"rue Basse, clos des Pommiers, rue de la Fontaine, avenue du Parc, rue Albert Ier, tienne des "
          u"Vignes, rue du Calvaire, rue des Combattants, quai de Meuse, rue Sous-le-Bois"),
      Localite(u"Anhée", 5537, 90,
               u"chaussée de Dinant, rue de la Libération, rue Grande, rue du Vieux Tram"),
      Localite(u"Bioul", 5537, 60, u"rue de Fraire, place Vaxelaire, rue Ruchenne, rue du Fosteau"),
      Localite(u"Yvoir", 5530, 80,
               u"rue du Rauysse, avenue Doyen Roger Woine, rue du Maka, rue de l'Hôtel de Ville"),
      Localite(u"Godinne", 5530, 50, u"rue du Prieuré, avenue de la Vieille Église, rue des Acacias"),
      Localite(u"Dinant", 5500, 60, u"rue Saint-Jacques, rue Grande, avenue Cadoux, rue du Fort"),
      Localite(u"Purnode", 5530, 40, u"rue de la Brasserie, rue du Bienvenu, Grand-Route"),
      Localite(u"Profondeville", 5170, 40,
               u"chaussée de Dinant, rue du Beau Vallon, avenue Gouverneur Bovesse"),
      Localite(u"Jambes", 5100, 35, u"rue de Dave, avenue du Bourgmestre Jean Materne, rue Mazy"),
      Localite(u"Namur", 5000, 25, u"rue de Bruxelles, rue Saint-Nicolas, rue Henri Lecocq"),
  };
}

std::vector<TLocalite> AutourDeVesperval() {
  return {
      Localite(
          u"Vesperval", 5364, 540,
          u"avenue des Tilleuls, rue de la Chapelle, rue du Château, rue du Tige, rue Try Joly, chemin des "
          u"Dames, rue du Lavoir, place du Tilleul, rue des Écoles, ruelle du Curé, rue de Brumeval, "
          u"rue du Fond d'Oreille"),
      Localite(u"Emptinne", 5363, 90, u"chaussée de Liège, rue de l'Église, rue du Bourdeau"),
      Localite(u"Hamois", 5360, 80, u"rue du Relais, chaussée de Ciney, rue d'Hubinne, rue Joseph Lambert"),
      Localite(u"Natoye", 5360, 60, u"rue du Carmel, rue de la Gare, rue des Carrières"),
      Localite(u"Ciney", 5590, 110, u"rue du Commerce, place Monseu, rue Piervenne, avenue du Sainfoin"),
      Localite(u"Achet", 5362, 50, u"rue du Vivier, rue de Hoyoux"),
      Localite(u"Assesse", 5330, 70, u"rue Jaumain, chaussée de Marche, rue de la Gendarmerie"),
  };
}

QString DeuxChiffres(int nombre) { return u"%1"_s.arg(nombre, 2, 10, QLatin1Char('0')); }

}  // namespace

const std::vector<TOrigine>& Origines() {
  static const std::vector<TOrigine> origines = [] {
    std::vector<TOrigine> liste{Wallonne()};
    for (const TLigneOrigine& o : kOrigines)
      liste.push_back({QString::fromUtf16(o.Nationalite), QString::fromUtf16(o.Naissance), o.Poids,
                       o.PrenomsFrancais, Liste(o.Noms), Liste(o.Filles), Liste(o.Garcons), Liste(o.Meres),
                       Liste(o.Peres)});
    return liste;
  }();
  return origines;
}

const std::vector<TLocalite>& Localites(std::size_t site) {
  static const std::vector<TLocalite> localites[] = {AutourDeBrumeval(), AutourDeVesperval()};
  return localites[site];
}

const QStringList& LieuxNaissance() {
  static const QStringList lieux = Liste(u"Namur, Dinant, Yvoir, Namur, Yvoir, Bruxelles, Charleroi, Liège");
  return lieux;
}

QString IbanBelge(int banque, int numero) {
  const QString dix = u"%1%2"_s.arg(banque, 3, 10, QLatin1Char('0')).arg(numero, 7, 10, QLatin1Char('0'));
  const int reste = Modulo97(dix);
  const QString national = dix % DeuxChiffres(reste == 0 ? 97 : reste);
  // "BE" counts as 11 14 behind the number, with 00 for the check digits sought.
  const QString controle = DeuxChiffres(98 - Modulo97(QString(national % u"111400")));
  return u"BE" % controle % u' ' % national.left(4) % u' ' % national.mid(4, 4) % u' ' % national.mid(8);
}
