#pragma once
#include <functional>
#include <memory>

#include "documents/contexte.h"
#include "documents/resultat.h"

class IDialogues;

/// A named object of an open label.
class IObjetEtiquette {
 public:
  virtual ~IObjetEtiquette() = default;

  /// In the place of what the model has there.
  virtual void EcrireTexte(const QString& texte) = 0;
  /// The text as bars, in the kind of code of the model.
  virtual void EcrireCodeBarres(const QString& texte) = 0;
};

/// The software of a label printer. Its operations raise Exception.
class IMoteurEtiquettes {
 public:
  virtual ~IMoteurEtiquettes() = default;

  /// Loads a label model; full path.
  virtual void OuvrirFichier(const QString& chemin) = 0;
  /// Null when the open label has no object of that name; it holds until the next file is opened.
  virtual IObjetEtiquette* TrouverObjet(const QString& nom) = 0;
  /// Prints the open label as a job of its own; `port` may be empty.
  virtual void Imprimer(const QString& imprimante, const QString& port, int exemplaires) = 0;
};

/// The models of label, 1 and 2.
enum class TModeleEtiquette { Grande = 1, Petite };

/// What the labels need of the workstation they are printed on.
struct TPosteEtiquettes {
  /// Null when the printer's software is missing; no function at all is the same.
  std::function<std::unique_ptr<IMoteurEtiquettes>()> CreerMoteur;
  /// Full name of the printer in use: "device on port", or the device alone.
  std::function<QString()> Imprimante;
  QString Dossier;  ///< where the label models lie: the program's own
};

/// Prints labels with the name, the class and the register number of pupils. It keeps the engine, which
/// is made at the first use, so the screen that prints owns one of these.
class TEtiquettes {
 public:
  /// `dialogues`, for the wait cursor, must outlive it.
  TEtiquettes(TPosteEtiquettes poste, IDialogues& dialogues)
      : poste_(std::move(poste)), dialogues_(dialogues) {}

  /// A label for each pupil who was not struck off, even a single one. It fails, with a message and
  /// nothing printed, without engine or model; an object that the model lacks leaves a message for each
  /// label, which is printed all the same.
  TResultat Imprimer(TModeleEtiquette modele, const TElevesChoisis& eleves);
  /// Why labels of that model cannot be printed here, before anybody asks for one: the model is not there.
  /// A printer may still be switched on, so its absence is told when it is needed. "" when they can.
  QString Empechement(TModeleEtiquette modele) const;

 private:
  QString Chemin(TModeleEtiquette modele) const;
  QStringList ImprimerUne(const TEleve& eleve);

  TPosteEtiquettes poste_;
  IDialogues& dialogues_;
  std::unique_ptr<IMoteurEtiquettes> moteur_;
};

/// The labels of the wizard's first titles; without a printer of labels, the same as without its software.
TResultat EtiquettesGrandes(const TContexteDocument& contexte, const TDemandeDocument& demande);
TResultat EtiquettesPetites(const TContexteDocument& contexte, const TDemandeDocument& demande);
/// Why these cannot be made here; "" when they can.
QString EmpechementGrandes(const TEtiquettes& etiquettes);
QString EmpechementPetites(const TEtiquettes& etiquettes);
