#include "fuzz/cibles.h"

#include <QCryptographicHash>
#include <QtEndian>

#include "core/data_set.h"
#include "documents/modeles.h"
#include "documents/moteur_etiquettes.h"
#include "forms/grille.h"
#include "meals/fichier_repas.h"
#include "report/layout/mise_en_page.h"
#include "report/output/pdf.h"
#include "report/script/arbre.h"
#include "workflows/import_presences.h"
#include "workflows/import_registre.h"
#include "workflows/import_virements.h"

namespace {

/// Says nothing and refuses everything, whatever the bytes lead to.
class TMuet : public TDialoguesScenario {
  void Message(const QString&) override {}
  void Information(const QString&) override {}
  bool Confirmer(const QString&) override { return false; }
  std::optional<QString> Saisir(const TSaisie&) override { return {}; }
  bool Reessayer(const TReessai&) override { return false; }
};

/// A workstation on a file of its own connection.
struct TPosteMuet {
  TPosteMuet(TBaseEssai& ecole, TControleurEssai& essai)
      : Base(Muet, ecole.Reglages), Controleur(Base, ecole.Reglages, essai.Fenetre, essai.Horloge) {
    Base.ServerName = ecole.FichierDeDonnees();
    Base.Connecter();
  }
  TMuet Muet;
  TDataModule1 Base;
  TControleur Controleur;
};

/// Whether it was not refused.
bool Accepte(const auto& geste) {
  try {
    geste();
    return true;
  } catch (const Exception&) {
    return false;
  }
}

/// Knows every variable and object.
class THote : public IHoteScript {
  QString Variable(const QString& nom) override { return nom.size() % 2 == 0 ? nom : u"12,50"_s; }
  bool Poser(const QString& objet, TPropriete, const TValeurScript&) override { return !objet.isEmpty(); }
};

/// Three levels of two, or a list of two columns.
TRapport PetitRapport(bool liste) {
  TRapport rapport(u"Essai"_s, u"Essai"_s);
  if (liste) {
    TGrille grille({{u"Nom"_s}, {u"Total"_s}});
    for (int i = 0; i < 3; ++i) grille.Ajouter({u"Zoé"_s, u"12,50"_s});
    rapport.ChargerColonnesListe(grille);
    return rapport;
  }
  TArbreRapport arbre(2, TNoeudRapport(u"Élève"_s));
  for (TNoeudRapport& eleve : arbre) {
    eleve.Valeurs.Ecrire(u"NomEleve", u"Dupont <b>[Total]</b> l'aîné de la famille"_s);
    eleve.Enfants.resize(2, TNoeudRapport(u"Section"_s));
    for (TNoeudRapport& section : eleve.Enfants) section.Ajouter({}).Valeurs.Ecrire(u"Total", u"1"_s);
  }
  rapport.CopierArbre(std::move(arbre));
  return rapport;
}

}  // namespace

TCibles::TCibles() {
  ModeleDocument(u"Facture"_s);  // the parts that templates share are at hand
  TEcoleEssai ecole(base_);
  ecole.tarif(Essai::Matin, Essai::TousLesJours, u"07:00"_s, u"08:30"_s, Essai::Forfait, u"1"_s,
              Essai::ScanPresence);
  ecole.unEleve().enClasse(u"P1"_s, u"A"_s);
  essai_.Charger();
}

void TCibles::Registre(const QByteArray& octets) {
  TPosteMuet poste(base_, essai_);
  Accepte([&] {
    TImportRegistre import(poste.Controleur);
    if (import.Etape1(base_.Fichier(u"registre"_s, octets))) import.Etape2();
  });
}

void TCibles::Presences(const QByteArray& octets) {
  TPosteMuet poste(base_, essai_);
  Accepte([&] {
    TImportPresences import(poste.Controleur);
    import.ImporterFichier(base_.Fichier(u"scans"_s, octets));
    import.Etape2();
  });
}

void TCibles::Releve(const QByteArray& octets) {
  TPosteMuet poste(base_, essai_);
  const QString fichier = base_.Fichier(u"releve"_s, octets);
  for (const QString& disposition : {u""_s, u"1"_s, u"2"_s}) {
    Globals.Parametres->SetParametre(TParam::TypeCompteBancaire, disposition);
    Globals.Parametres->SetParametre(TParam::CompteCourant, disposition);
    Accepte([&] {
      TImportVirements import(poste.Controleur);
      if (import.Etape1(fichier)) import.Etape2();
    });
  }
  Globals.Extraits.reset();
  Globals.ExtraitsPrecedents.reset();
}

bool TCibles::ReleveBancaire(const QByteArray& octets) {
  bool lu = false;
  return Accepte([&] { lu = LireReleveBancaire(octets).has_value(); }) && lu;
}

bool TCibles::CopieLocale(const QByteArray& octets) {
  bool lue = false;
  for (const QByteArray& copie :
       {octets, QByteArray(octets + QCryptographicHash::hash(octets, QCryptographicHash::Sha256))})
    lue |= Accepte(
        [&] { TDataSet::DepuisOctets(TDataSet::DepuisOctets(copie, u"copie"_s).EnOctets(), u"copie"_s); });
  return lue;
}

void TCibles::Repas(const QByteArray& octets) {
  TFichierRepas repas(base_.Fichier(u"repas.txt"_s, octets));
  const QByteArray ligne = LigneRepas(u"1-1"_s, 42646);
  const auto fois = [&] { return std::ranges::count(repas.Lignes(), ligne); };
  const auto avant = fois();
  repas.Basculer(ligne);
  if (fois() != (avant > 0 ? avant - 1 : 1) || TFichierRepas(repas.Chemin()).Lignes() != repas.Lignes())
    std::abort();
  for (const QByteArray& lue : repas.Lignes()) JourDeLigne(lue);
}

void TCibles::Rapport(const QByteArray& octets) {
  QByteArray fichier = QByteArrayLiteral("CALPRAP\x01????");
  qToLittleEndian(static_cast<quint32>(octets.size()), fichier.data() + 8);
  fichier += qCompress(octets, 1).mid(4);
  Accepte([&] {
    const TDocumentPrepare document = TDocumentPrepare::DepuisOctets(fichier);
    document.Chercher(u"e"_s);
    PdfEnOctets({&document}, document.Titre, {});
  });
}

bool TCibles::Modele(const QByteArray& octets) {
  TModele modele;
  if (!Accepte([&] { modele = LireModele(octets, u"essai.xml"_s); })) return false;
  for (const bool liste : {false, true}) MettreEnPage(PetitRapport(liste), modele);
  return true;
}

bool TCibles::Etiquette(const QByteArray& octets) {
  TMoteurEtiquettes moteur([](const TDocumentPrepare&, const TTravailEtiquette&) {});
  if (!Accepte([&] { moteur.OuvrirOctets(octets, u"essai.label"_s); })) return false;
  for (const QString& nom : {u"NomEleve"_s, u"NomEcole"_s, u"CodeBarre"_s})
    if (IObjetEtiquette* objet = moteur.TrouverObjet(nom)) objet->EcrireTexte(u"[NomEcole] 5537-01"_s);
  moteur.Imprimer({}, {}, 1);
  return true;
}

bool TCibles::Script(const QByteArray& octets) {
  THote hote;
  try {
    const TScript script = TScript::Lire(QString::fromUtf8(octets));
    TExecution execution(script, hote);
    for (int fois = 0; fois < 3; ++fois)
      for (const TProcedure& procedure : script.Arbre().Procedures) try {
          execution.Appeler(procedure.Nom, u"Bande"_s);
        } catch (const EScript&) {
        }
    return true;
  } catch (const EScript&) {
    return false;
  }
}
