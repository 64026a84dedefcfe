#include "documents/etiquettes.h"

#include <QDir>
#include <QFile>

#include "core/dialogues.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

namespace {

struct TRegleModele {
  const char16_t* Fichier;
  const char16_t* SiAbsent;
};

/// In the order of the enumeration. The wordings are those that the schools know: they differ by a
/// blank, and their second sentence names a file of another age.
constexpr TRegleModele kModeles[] = {
    {u"EtiquetteEleve-99012.label",
     u"Impossible d'initialiser le fichier de modèle d'étiquette: \"EtiquetteEleve-99012.label\". Veuillez "
     u"vérifier si le fichier EtiquetteLivre.LWL se trouve dans le répertoire courant."},
    {u"EtiquetteEleve-11352.label",
     u"Impossible d'initialiser le fichier de modèle d'étiquette : \"EtiquetteEleve-11352.label\". Veuillez "
     u"vérifier si le fichier EtiquetteLivre.LWL se trouve dans le répertoire courant."},
};

const TRegleModele& Regle(TModeleEtiquette modele) { return kModeles[static_cast<std::size_t>(modele) - 1]; }

TResultat Echouer(const QString& message) {
  TResultat resultat;
  resultat.Messages += message;
  resultat.Echec = true;
  return resultat;
}

TResultat SansMoteur() {
  return Echouer(
      u"Impossible d'initialiser les pilotes d'impression. Veuillez vérifier l'installation de "
      "votre imprimante Dymo."_s);
}

/// "device on port"; a name without port is all device.
struct TImprimante {
  explicit TImprimante(const QString& nom) {
    const QString separateur = u" on "_s;
    const qsizetype ici = nom.indexOf(separateur);
    Appareil = ici < 0 ? nom : nom.left(ici);
    if (ici >= 0) Port = nom.mid(ici + separateur.size());
  }
  QString Appareil, Port;
};

TResultat DuPoste(const TContexteDocument& contexte, TModeleEtiquette modele, const TElevesChoisis& eleves) {
  return contexte.Etiquettes != nullptr ? contexte.Etiquettes->Imprimer(modele, eleves) : SansMoteur();
}

}  // namespace

QString TEtiquettes::Chemin(TModeleEtiquette modele) const {
  return QDir(poste_.Dossier).filePath(QString::fromUtf16(Regle(modele).Fichier));
}

QString TEtiquettes::Empechement(TModeleEtiquette modele) const {
  return QFile::exists(Chemin(modele))
             ? QString()
             : QString(u"modèle absent : " % QString::fromUtf16(Regle(modele).Fichier));
}

TResultat TEtiquettes::Imprimer(TModeleEtiquette modele, const TElevesChoisis& eleves) {
  const TAttente attente(dialogues_);
  if (!moteur_ && poste_.CreerMoteur) moteur_ = poste_.CreerMoteur();
  if (!moteur_) return SansMoteur();
  const QString chemin = Chemin(modele);
  if (!QFile::exists(chemin)) return Echouer(QString::fromUtf16(Regle(modele).SiAbsent));
  moteur_->OuvrirFichier(chemin);
  TResultat resultat;
  for (const TEleve* eleve : eleves)
    if (!eleve->FlgRadie) resultat.Messages += ImprimerUne(*eleve);
  return resultat;
}

QStringList TEtiquettes::ImprimerUne(const TEleve& eleve) {
  QStringList messages;
  const auto remplir = [&](const QString& objet, auto operation, const QString& texte) {
    if (IObjetEtiquette* trouve = moteur_->TrouverObjet(objet))
      (trouve->*operation)(texte);
    else
      messages += u"Le modèle d'étiquette de contient pas de champs \"%1\"."_s.arg(objet);
  };
  remplir(u"NomEleve"_s, &IObjetEtiquette::EcrireTexte, eleve.NomComplet());
  // That object shows the class, whatever its name says.
  remplir(u"NomEcole"_s, &IObjetEtiquette::EcrireTexte, eleve.LibelleClasse());
  remplir(u"CodeBarre"_s, &IObjetEtiquette::EcrireCodeBarres, eleve.Matricule);
  const TImprimante imprimante(poste_.Imprimante ? poste_.Imprimante() : QString());
  moteur_->Imprimer(imprimante.Appareil, imprimante.Port, 1);
  return messages;
}

TResultat EtiquettesGrandes(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return DuPoste(contexte, TModeleEtiquette::Grande, demande.Eleves);
}

TResultat EtiquettesPetites(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return DuPoste(contexte, TModeleEtiquette::Petite, demande.Eleves);
}

QString EmpechementGrandes(const TEtiquettes& etiquettes) {
  return etiquettes.Empechement(TModeleEtiquette::Grande);
}

QString EmpechementPetites(const TEtiquettes& etiquettes) {
  return etiquettes.Empechement(TModeleEtiquette::Petite);
}
