#include "demo/fichiers.h"

#include <map>

#include "demo/calendrier.h"
#include "demo/passages.h"

using namespace Qt::StringLiterals;

namespace {

const QString kFinLigne = u"\r\n"_s;
const QString kEtablissement = u"2208"_s;

QString Compacte(const QDate& date) { return date.toString(u"yyyyMMdd"_s); }

/// As the register protects numbers from spreadsheets: ="12".
QString Protege(const QString& texte) {
  if (texte.isEmpty()) return {};
  return u"=\"" % texte % u'"';
}

QString Courriel(const TAdulteExemple& adulte) {
  if (adulte.Nom.isEmpty()) return {};
  QString nom;
  for (const QChar lettre :
       QString(adulte.Prenom % u'.' % adulte.Nom).normalized(QString::NormalizationForm_D))
    if (lettre == u'.' || (lettre.isLetter() && lettre.unicode() < 128)) nom += lettre.toLower();
  return nom % u"@courriel.example";
}

QString CodePostal(const TAdulteExemple& adulte) {
  return adulte.CodePostal == 0 ? QString() : QString::number(adulte.CodePostal);
}

QString Sexe(const TEleveExemple& eleve) { return eleve.Fille ? u"F"_s : u"M"_s; }

QStringList EntetePremiere() {
  return u"Etablissement;Implantation;Matricule;Nom;Prénom;Sexe;Date de naissance;Lieu de naissance;Pays;"
         "Nationalité;Langue maternelle;Registre national;Rue;Numéro;Code postal;Localité;Date de "
         "situation;"
         "Année d'études;Classe;Date d'entrée;Date de sortie;Lien responsable 1;Nom responsable 1;"
         "Prénom responsable 1;Téléphone 1;GSM 1;Courriel 1;Etat civil 1;Langue 1;Cours philosophique;"
         "Langue moderne;Primo-arrivant;Intégration;Lien responsable 2;Nom responsable 2;Prénom "
         "responsable 2;"
         "Téléphone 2;GSM 2;Courriel 2;Etat civil 2;Langue 2;Rue 2;Numéro 2;Code postal 2;Localité "
         "2;Remarque"_s.split(u';');
}

QStringList LignePremiere(const TEcoleExemple& ecole, const TEleveExemple& eleve) {
  const TFamilleExemple& famille = ecole.Familles[static_cast<std::size_t>(eleve.Famille)];
  const TAdulteExemple &r1 = famille.Responsable, &r2 = famille.Responsable2;
  QStringList champs(EntetePremiere().size());
  champs[0] = kEtablissement;
  champs[1] = ecole.Sites[static_cast<std::size_t>(eleve.Site)].Code;
  champs[2] = eleve.Matricule;
  champs[3] = eleve.Nom;
  champs[4] = eleve.Prenom;
  champs[5] = Sexe(eleve);
  champs[6] = Compacte(eleve.DateNaissance);
  champs[7] = eleve.LieuNaissance;
  champs[9] = eleve.Nationalite;
  champs[12] = r1.Adresse;
  champs[13] = Protege(r1.Numero);
  champs[14] = CodePostal(r1);
  champs[15] = r1.Localite;
  champs[16] = ecole.DateRegistre.toString(u"yyyy/MM/dd"_s);
  champs[17] = eleve.Classe;
  champs[18] = eleve.SousClasse;
  champs[19] = Compacte(eleve.Arrivee);
  champs[22] = r1.Nom;
  champs[23] = r1.Prenom;
  champs[26] = Courriel(r1);
  champs[34] = r2.Nom;
  champs[35] = r2.Prenom;
  champs[38] = Courriel(r2);
  champs[41] = r2.Adresse;
  champs[42] = Protege(r2.Numero);
  champs[43] = CodePostal(r2);
  champs[44] = r2.Localite;
  return champs;
}

QStringList EnteteSeconde() {
  return u"Année scolaire;Etablissement;Implantation;Matricule;Sexe;Registre national;Date de naissance;"
         "Lieu de naissance;Pays;Nationalité;Nom;Prénom;Langue;Rue;Numéro;Code INS;Code postal;Localité;"
         "Pays de résidence;Téléphone;Courriel;Date d'entrée;Statut;Date de situation;Niveau;Forme;"
         "Année d'études;Classe;Nom responsable 1;Prénom responsable 1;Lien 1;GSM 1;Courriel 1;Langue 1;"
         "Lien 2;Nom responsable 2;Prénom responsable 2;GSM 2;Courriel 2;Remarque"_s.split(u';');
}

QStringList LigneSeconde(const TEcoleExemple& ecole, const TEleveExemple& eleve) {
  const TFamilleExemple& famille = ecole.Familles[static_cast<std::size_t>(eleve.Famille)];
  const TAdulteExemple &r1 = famille.Responsable, &r2 = famille.Responsable2;
  QStringList champs(EnteteSeconde().size());
  champs[0] = u"%1-%2"_s.arg(ecole.Annee).arg(ecole.Annee + 1);
  champs[1] = kEtablissement;
  champs[2] = ecole.Sites[static_cast<std::size_t>(eleve.Site)].Code;
  champs[3] = eleve.Matricule;
  champs[4] = Sexe(eleve);
  champs[6] = Compacte(eleve.DateNaissance);
  champs[7] = eleve.LieuNaissance;
  champs[9] = eleve.Nationalite;
  champs[10] = eleve.Nom;
  champs[11] = eleve.Prenom;
  champs[13] = r1.Adresse;
  champs[14] = Protege(r1.Numero);
  champs[16] = CodePostal(r1);
  champs[17] = r1.Localite;
  champs[21] = Compacte(eleve.Arrivee);
  champs[22] = u"Inscrit M"_s;
  champs[23] = ecole.DateRegistre.toString(u"dd/MM/yyyy"_s);
  champs[24] = eleve.Niveau < 3 ? u"MAT"_s : u"PRI"_s;
  champs[26] = Protege(eleve.Classe);
  champs[27] = eleve.SousClasse;
  champs[28] = r1.Nom;
  champs[29] = r1.Prenom;
  champs[32] = Courriel(r1);
  champs[35] = r2.Nom;
  champs[36] = r2.Prenom;
  champs[38] = Courriel(r2);
  return champs;
}

/// The same weekday in the school's own year: 52 weeks on, one year later. Of such a year there is the autumn
/// only; invalid for the other days.
QDate JourDe(const TEcoleExemple& ecole, const QDate& jour) {
  if (ecole.Annee == kAnneeExemple) return jour;
  const QDate decale = jour.addDays(52 * 7 * (ecole.Annee - kAnneeExemple));
  const bool automne = decale >= QDate(ecole.Annee, 9, 1) && decale <= QDate(ecole.Annee, 12, 22);
  return automne && decale != QDate(ecole.Annee, 9, 27) ? decale : QDate();
}

/// Pupils of sixth year who left in June are still in the export, with another status.
QStringList LigneAncien(const TEcoleExemple& ecole, int rang) {
  TEleveExemple ancien = ecole.Eleves[static_cast<std::size_t>(rang) * ecole.Eleves.size() / 7];
  ancien.Matricule = u"5537-%1"_s.arg(640 + 3 * rang, 5, 10, QLatin1Char('0'));
  ancien.DateNaissance = ancien.DateNaissance.addYears(2004 - ancien.DateNaissance.year());
  ancien.Prenom = ancien.Fille ? u"Marie-Antoinette"_s : u"Maximilien"_s;
  ancien.Niveau = kNiveaux - 1;
  ancien.Classe = QString::fromUtf16(kNomsNiveaux.back());
  ancien.SousClasse = u"A"_s;
  QStringList champs = LigneSeconde(ecole, ancien);
  champs[22] = u"Sorti D"_s;
  return champs;
}

}  // namespace

QByteArray TexteRegistre(const TEcoleExemple& ecole, TDisposition disposition) {
  const bool premiere = disposition == TDisposition::Premiere;
  QStringList lignes{(premiere ? EntetePremiere() : EnteteSeconde()).join(u';')};
  for (const TEleveExemple& eleve : ecole.Eleves)
    lignes.append((premiere ? LignePremiere(ecole, eleve) : LigneSeconde(ecole, eleve)).join(u';'));
  for (int i = 0; !premiere && i < 6; ++i) lignes.append(LigneAncien(ecole, i).join(u';'));
  return QString(lignes.join(kFinLigne) % kFinLigne).toUtf8();
}

std::vector<TFichierPresences> FichiersPresences(const TEcoleExemple& ecole) {
  std::map<std::pair<QDate, std::size_t>, TFichierPresences> semaines;
  for (std::size_t site = 0; site < ecole.Sites.size(); ++site)
    for (const TPassage& p : PassagesAnnee(ecole, static_cast<int>(site))) {
      const QDate jour = JourDe(ecole, p.Jour);
      if (!jour.isValid()) continue;
      const QDate lundi = jour.addDays(1 - jour.dayOfWeek());
      TFichierPresences& fichier = semaines[{lundi, site}];
      const QString instant = Compacte(jour) % u';' %
                              QTime::fromMSecsSinceStartOfDay(1000 * p.Seconde).toString(u"hhmmss'000'"_s);
      const QString ligne = p.Matricule % u';' % QString::number(p.Type) % u';' % instant % u';' %
                            QString::number(p.Sens) % kFinLigne;
      fichier.Nom =
          u"Presences-" % ecole.Sites[site].LibelleCourt % u'-' % lundi.toString(u"yyyy-MM-dd"_s) % u".txt";
      fichier.Texte += ligne.toLatin1();
      ++fichier.Lignes;
    }
  std::vector<TFichierPresences> fichiers;
  for (auto& [semaine, fichier] : semaines) fichiers.push_back(std::move(fichier));
  return fichiers;
}
