#include "demo/noms.h"

namespace {

QStringList Liste(const char16_t* texte) { return QString::fromUtf16(texte).split(QStringLiteral(", ")); }

TOrigine Wallonne() {
  TOrigine o;
  o.Nationalite = QStringLiteral("Belge");
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
      u"WAUTHIER, WILLEM, WILMET, WILMOTTE, DE WILDE, d'HARVENG, DELLA VALLE");
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

TOrigine Flamande() {
  TOrigine o;
  o.Nationalite = QStringLiteral("Belge");
  o.Poids = 80;
  o.PrenomsFrancais = 850;
  o.Noms = Liste(
      u"CLAES, CLAESSENS, DE MEULENAERE, DE SMET, DE VOS, JANSSENS, MERTENS, PEETERS, VAN CAUWENBERGHE, "
      u"VAN DAMME, VAN DEN BERGHE, VAN HOVE, VANDENBOSSCHE, VANDERLINDEN, VERHAEGEN, VERMEIREN, "
      u"WILLEMS, WOUTERS");
  o.Filles = Liste(u"Lotte, Elke, Femke, Hanne, Noor");
  o.Garcons = Liste(u"Jef, Wout, Lars, Daan, Sven");
  o.Meres = Liste(u"Katrien, Griet, Ann, Sofie, Els, Tine, Ingrid");
  o.Peres = Liste(u"Koen, Bart, Wim, Dirk, Tom, Peter, Jan");
  return o;
}

TOrigine Italienne() {
  TOrigine o;
  o.Nationalite = QStringLiteral("Italienne");
  o.Naissance = QStringLiteral("Agrigento");
  o.Poids = 60;
  o.PrenomsFrancais = 500;
  o.Noms = Liste(
      u"BRUNO, CAPPELLO, D'ANGELO, DI PIETRO, FERRARA, GALLO, LO PRESTI, MANCUSO, PARISI, RUSSO, "
      u"SALVAGGIO, TERRANOVA");
  o.Filles = Liste(u"Giulia, Chiara, Aurora, Elisa, Sofia, Alessia, Giorgia");
  o.Garcons = Liste(u"Matteo, Luca, Alessio, Nino, Fabio, Gino, Lorenzo");
  o.Meres = Liste(u"Rosa, Antonella, Sabrina, Patrizia, Carmela, Laura");
  o.Peres = Liste(u"Salvatore, Giuseppe, Antonio, Marco, Calogero, Fabrizio");
  return o;
}

TOrigine Iberique() {
  TOrigine o;
  o.Nationalite = QStringLiteral("Portugaise");
  o.Naissance = QStringLiteral("Braga");
  o.Poids = 35;
  o.PrenomsFrancais = 400;
  o.Noms = Liste(u"DA SILVA, DOS SANTOS, FERNANDEZ, FERREIRA, GARCIA, GONÇALVES, MORENO, PEREIRA");
  o.Filles = Liste(u"Beatriz, Inês, Carolina, Mariana, Lucia");
  o.Garcons = Liste(u"Tiago, Rui, João, Miguel, Pablo");
  o.Meres = Liste(u"Maria José, Sandra, Paula, Fátima, Cristina");
  o.Peres = Liste(u"Carlos, Paulo, Manuel, José Luis, Nuno");
  return o;
}

TOrigine Marocaine() {
  TOrigine o;
  o.Nationalite = QStringLiteral("Marocaine");
  o.Naissance = QStringLiteral("Nador");
  o.Poids = 50;
  o.PrenomsFrancais = 100;
  o.Noms = Liste(
      u"AÏT OUALI, AZZOUZI, BENALI, BOUHADDI, CHAKIR, EL AMRANI, EL KHATTABI, HADDOUCHI, OUARDI, "
      u"ZEROUALI");
  o.Filles = Liste(u"Yasmine, Inès, Aya, Nour, Salma, Rania, Assia, Kenza");
  o.Garcons = Liste(u"Mohamed, Adam, Ilyas, Rayan, Bilal, Amine, Youssef, Ayoub");
  o.Meres = Liste(u"Fatima, Samira, Naïma, Karima, Hanane, Loubna");
  o.Peres = Liste(u"Karim, Rachid, Mustapha, Hassan, Abdelkader, Saïd");
  return o;
}

TOrigine Turque() {
  TOrigine o;
  o.Nationalite = QStringLiteral("Turque");
  o.Naissance = QStringLiteral("Emirdağ");
  o.Poids = 25;
  o.PrenomsFrancais = 50;
  o.Noms = Liste(u"AYDIN, DEMIR, KAYA, KILIÇ, ŞAHIN, YILDIZ");
  o.Filles = Liste(u"Defne, Elif, Zeynep, Ecrin, Esma");
  o.Garcons = Liste(u"Yiğit, Emir, Kerem, Mert, Eymen");
  o.Meres = Liste(u"Ayşe, Hatice, Emine, Gülay, Sevim");
  o.Peres = Liste(u"Mehmet, Ali, Hüseyin, Murat, Osman");
  return o;
}

TOrigine AfriqueCentrale() {
  TOrigine o;
  o.Nationalite = QStringLiteral("Congolaise");
  o.Naissance = QStringLiteral("Kinshasa");
  o.Poids = 45;
  o.PrenomsFrancais = 350;
  o.Noms = Liste(
      u"HABIMANA, ILUNGA, KABONGO, KALALA, MBUYI, MUKENDI, NGOY, TSHIBANDA, UWIMANA, BAH, DIALLO, "
      u"BARRY");
  o.Filles = Liste(u"Grâce, Exaucée, Merveille, Divine, Aïssatou, Plamedie, Keza");
  o.Garcons = Liste(u"Christian, Daniel, Emmanuel, Ibrahima, Jonathan, Samuel, Glody");
  o.Meres = Liste(u"Béatrice, Mamie, Solange, Clarisse, Fatoumata, Chantal");
  o.Peres = Liste(u"Jean-Claude, Dieudonné, Mamadou, Patrick, Célestin, Trésor");
  return o;
}

TOrigine EuropeCentrale() {
  TOrigine o;
  o.Nationalite = QStringLiteral("Roumaine");
  o.Naissance = QStringLiteral("Iași");
  o.Poids = 40;
  o.PrenomsFrancais = 200;
  o.Noms = Liste(
      u"BERISHA, GASHI, IONESCU, KOWALCZYK, KRASNIQI, NOWAK, OSTROWSKI, POPESCU, ȘTEFĂNESCU, "
      u"WÓJCIK");
  o.Filles = Liste(u"Zofia, Maja, Ioana, Elena, Arta, Oliwia");
  o.Garcons = Liste(u"Andrei, Jakub, Dren, Kacper, Mihai, Leon");
  o.Meres = Liste(u"Mihaela, Agnieszka, Katarzyna, Vjosa, Alina");
  o.Peres = Liste(u"Piotr, Marcin, Ionuț, Agim, Cristian");
  return o;
}

TOrigine Asie() {
  TOrigine o;
  o.Nationalite = QStringLiteral("Syrienne");
  o.Naissance = QStringLiteral("Alep");
  o.Poids = 25;
  o.PrenomsFrancais = 200;
  o.Noms = Liste(u"AL KHATIB, HADDAD, NGUYEN, PHAM, RAHMANI, SINGH, TRAN");
  o.Filles = Liste(u"Thi Mai, Linh, Rima, Sima, Amrit, Leila");
  o.Garcons = Liste(u"Minh, Omar, Karan, Anas, Duc, Zaid");
  o.Meres = Liste(u"Thi Hoa, Rasha, Mariam, Harpreet, Zahra");
  o.Peres = Liste(u"Van Hung, Khaled, Ahmad, Gurpreet, Nabil");
  return o;
}

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

int Modulo97(const QString& chiffres) {
  int reste = 0;
  for (const QChar chiffre : chiffres) reste = (reste * 10 + chiffre.digitValue()) % 97;
  return reste;
}

QString DeuxChiffres(int nombre) { return QStringLiteral("%1").arg(nombre, 2, 10, QLatin1Char('0')); }

}  // namespace

const std::vector<TOrigine>& Origines() {
  static const std::vector<TOrigine> origines{Wallonne(), Flamande(),        Italienne(),
                                              Iberique(), Marocaine(),       Turque(),
                                              Asie(),     AfriqueCentrale(), EuropeCentrale()};
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
  const QString dix =
      QStringLiteral("%1%2").arg(banque, 3, 10, QLatin1Char('0')).arg(numero, 7, 10, QLatin1Char('0'));
  const int reste = Modulo97(dix);
  const QString national = dix % DeuxChiffres(reste == 0 ? 97 : reste);
  // "BE" counts as 11 14 behind the number, with 00 for the check digits sought.
  const QString controle = DeuxChiffres(98 - Modulo97(national % u"111400"));
  return u"BE" % controle % u' ' % national.left(4) % u' ' % national.mid(4, 4) % u' ' % national.mid(8);
}
