#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
"""A whole deal played through the accessibility bus, as a screen reader
would: JOUER, two swaps (one by presses, one by keys), hurry, GO. Every call
must answer at once, the bar must move, the focus must land on GO and then on
the result, and what is read must agree with the Scores file.

partie.py FOLDER: the game and its data files, in a folder of their own."""

import os
import re
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

dossier = sys.argv[1]
fautes = []
événements = []
horloge = []  # name changes of the clock, which should stay silent
durées = []  # of the actions, in seconds


def faute(message):
    fautes.append(message)
    print("ÉCHEC :", message, file=sys.stderr)


def pompe(secondes=0.0, jusqua=None):
    """Hands events over for `secondes`, or until `jusqua()` holds."""
    fin = time.monotonic() + secondes
    contexte = GLib.MainContext.default()
    while True:
        while contexte.iteration(False):
            pass
        if jusqua and jusqua():
            return True
        if time.monotonic() >= fin:
            return False
        time.sleep(0.02)


def écoute(évènement):
    """Keeps the focus events, and the clock's name changes apart."""
    if évènement.type.startswith("object:property-change:accessible-name"):
        if évènement.source.name.startswith("horloge"):
            horloge.append(évènement.source.name)
        return
    if évènement.type.startswith("object:state-changed:focused") and not évènement.detail1:
        return
    try:
        événements.append((évènement.source.getRoleName(), évènement.source.name))
    except Exception:  # the object may be gone already
        pass


def tous(racine):
    pile, vus = [racine], []
    while pile:
        objet = pile.pop()
        vus.append(objet)
        pile.extend(reversed([objet.getChildAtIndex(i) for i in range(objet.childCount)]))
    return vus


def action(objet, nom):
    """Runs an action by name; a reader's call must never wait for the game."""
    actions = objet.queryAction()
    noms = [actions.getName(i).lower() for i in range(actions.nActions)]
    if nom not in noms:
        faute(f"« {objet.name} » n'offre pas l'action {nom} ({noms})")
        return
    début = time.monotonic()
    try:
        actions.doAction(noms.index(nom))
    except GLib.Error as erreur:  # no answer before the bus gave up
        faute(f"l'action {nom} sur « {objet.name} » : {erreur.message}")
    durée = time.monotonic() - début
    durées.append(durée)
    if durée > 1.0:
        faute(f"l'action {nom} sur « {objet.name} » a pris {durée:.1f} s")


def touche(*noms):
    subprocess.run(["xdotool", "key", "--delay", "80", *noms], check=True)


def focus_sur(test, secondes):
    """Waits until a focus event comes for an object that passes `test`."""
    return pompe(secondes, lambda: any(test(rôle, nom) for rôle, nom in événements))


env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb",
           HOME=os.path.join(dossier, "maison"))
env.pop("XDG_CONFIG_HOME", None)
env.pop("XDG_DATA_HOME", None)


def lance():
    """The game, once it shows on the bus; a start that could not reach the
    virtual screen (busy machine) is tried once more."""
    for _ in range(2):
        jeu = subprocess.Popen([os.path.join(dossier, "troisniveaux")], env=env)
        limite = time.monotonic() + 20
        while time.monotonic() < limite and jeu.poll() is None:
            for appli in pyatspi.Registry.getDesktop(0):
                if appli is not None and appli.get_process_id() == jeu.pid and appli.childCount:
                    return jeu, appli.getChildAtIndex(0)
            time.sleep(0.2)
        if jeu.poll() is None:
            return jeu, None
    return jeu, None


jeu, fenêtre = lance()
try:
    if fenêtre is None:
        sys.exit("ÉCHEC : le jeu n'est pas apparu sur le bus d'accessibilité")
    if fenêtre.name != "Trois Niveaux":
        faute(f"la fenêtre s'appelle « {fenêtre.name} »")
    pyatspi.Registry.registerEventListener(écoute, "focus:", "object:state-changed:focused",
                                           "object:property-change:accessible-name")
    objets = tous(fenêtre)

    def un(rôle, nom):
        for objet in objets:
            if objet.getRole() == rôle and objet.name == nom:
                return objet
        sys.exit(f"ÉCHEC : pas de {rôle} « {nom} »")

    # The table read in order: each seat's name comes before its cards.
    ordre = [o.name for o in objets]
    noms = [l.strip() for l in open(os.path.join(dossier, "Noms"), encoding="cp1252")
            if l.strip()]
    noms = [n.strip('"').strip() for n in noms]
    places = [ordre.index(n) for n in noms]
    if places != sorted(places):
        faute(f"les sièges ne se lisent pas dans l'ordre de la table : {places}")

    # The window takes the keyboard, as the player's click would give it.
    fenêtres = subprocess.run(["xdotool", "search", "--sync", "--pid", str(jeu.pid)],
                              capture_output=True, text=True, check=True).stdout.split()
    for f in fenêtres:
        subprocess.run(["xdotool", "windowfocus", f], check=False)
    pompe(0.5)

    action(un(pyatspi.ROLE_PUSH_BUTTON, "JOUER"), "press")
    barre = un(pyatspi.ROLE_PROGRESS_BAR, "Recherche de l'ordinateur")
    pompe(0.5)
    premier = barre.queryValue().currentValue
    pompe(1.0)
    second = barre.queryValue().currentValue
    if not 0 <= premier < second <= 100:
        faute(f"la barre ne monte pas : {premier} puis {second}")

    # A swap by presses: the first card is checked while it is picked up.
    # The cards read from the top level down: places 10 to 12, 5 to 9, 0 to 4.
    humaines = [o for o in objets if o.getRole() == pyatspi.ROLE_IMAGE and
                o.parent.name == "jeu de " + noms[3] and ", niveau " in o.name]
    if len(humaines) != 13:
        faute(f"{len(humaines)} cartes du joueur nommées au lieu de 13")
    a, b = humaines[0], humaines[12]
    nom_a, nom_b = a.name, b.name
    action(a, "press")
    pompe(0.3)
    if not a.getState().contains(pyatspi.STATE_CHECKED):
        faute("une carte levée n'est pas cochée")
    action(b, "press")
    pompe(0.3)
    if a.getState().contains(pyatspi.STATE_CHECKED):
        faute("une carte posée reste cochée")
    if (a.name.split(",")[0], b.name.split(",")[0]) != (nom_b.split(",")[0], nom_a.split(",")[0]):
        faute(f"l'échange n'a pas eu lieu : {a.name} / {b.name}")

    # A swap by keys: the arrows carry the focus from card to card.
    def carte(place):
        return humaines[place - 10 if place >= 10 else place - 2 if place >= 5 else place + 8]

    avant = [carte(1).name.split(",")[0], carte(6).name.split(",")[0]]
    événements.clear()
    touche("Right", "Right")
    if not focus_sur(lambda r, n: r == "image" and n == carte(1).name, 3):
        faute(f"les flèches ne donnent pas le focus à la deuxième carte : {événements}")
    touche("space", "Up", "space")
    pompe(0.5)
    if [carte(6).name.split(",")[0], carte(1).name.split(",")[0]] != avant:
        faute(f"l'échange au clavier n'a pas eu lieu : {avant}")

    événements.clear()
    action(barre, "hurry")
    if not focus_sur(lambda r, n: r == "push button" and n == "GO", 30):
        faute(f"le focus ne vient pas sur GO : {événements}")
    événements.clear()
    action(un(pyatspi.ROLE_PUSH_BUTTON, "GO"), "press")
    if not focus_sur(lambda r, n: n.startswith("Fin de la donne."), 10):
        faute(f"le focus ne vient pas sur le résultat : {événements}")
    résultat = next((n for r, n in événements if n.startswith("Fin de la donne.")), "")
    print(résultat)
    print(f"{len(durées)} actions, la plus longue en {max(durées) * 1000:.0f} ms")

    # The sentence and the labels say the scores the file holds.
    pompe(0.5)
    scores = [l.strip() for l in open(os.path.join(dossier, "Scores"), encoding="cp1252")
              if l.strip()]
    étiquettes = {o.name for o in objets}
    for nom, score in zip(noms, scores):
        phrase = re.search(re.escape(nom) + r" : (?:[^,.]*, )?total de la donne (-?\d+), "
                           r"score (-?\d+)\.", résultat)
        if not phrase or phrase.group(2) != score:
            faute(f"la phrase ne dit pas « score {score} » pour {nom}")
        elif {f"score de {nom} : {score}",
              f"total de la donne de {nom} : {phrase.group(1)}"} - étiquettes:
            faute(f"les étiquettes de {nom} ne disent pas ce que disent la phrase et le fichier")
    paie = [o.name for o in objets if re.match(r".*, niveau [123] contre .* : -?\d+$", o.name)]
    if len(paie) != 36:
        faute(f"{len(paie)} paiements nommés au lieu de 36")
    # Panels give their text as it reads, without the document's markers.
    for objet in objets:
        try:
            texte = objet.queryText().getText(0, -1)
        except NotImplementedError:
            continue
        if "\ufdd0" in texte or "\ufdd1" in texte:
            faute(f"le texte de « {objet.name} » ({objet.getRoleName()}) porte des marques")
    if horloge:
        faute(f"l'horloge se fait entendre : {horloge}")
    touche("ctrl+q")
    jeu.wait(10)
finally:
    if jeu.poll() is None:
        jeu.kill()
sys.exit(1 if fautes else 0)
