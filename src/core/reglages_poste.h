#pragma once
#include <QString>

/// Whose settings: of the whole machine, or of the present user.
enum class TRacine { Machine, Utilisateur };

/// The named texts that this workstation keeps outside the database: the Windows registry key
/// \Software\Tarnvale\Orbelin, elsewhere a settings file of each scope.
class TReglagesPoste {
 public:
  /// "" when the value is absent from that scope; the other scope is not looked at.
  QString Lire(TRacine racine, const QString& nom) const;
  /// False when the scope refuses writing.
  bool Ecrire(TRacine racine, const QString& nom, const QString& valeur);
  /// Whether this user may write settings of the machine.
  bool MachineInscriptible() const;
};

/// The folder of the user's own data of this program; created when missing.
QString DossierDonnees();
/// Where scanner files are archived and the tablet's files stand: `C:\Presences`, elsewhere
/// `Presences` in the data folder, or the value `DossierPresences` of the user. Created when missing.
QString DossierPresences(const TReglagesPoste& reglages);
/// The first of TEMP, TMP and USERPROFILE that is not blank, else the system's own.
QString DossierTemporaire();
