"""Draws the pages of a dump with ReportLab: reportlab_factures.py DUMP.json FILE.pdf

Prints "pret", then for each line of its input draws all pages again and prints the seconds and the octets
of the file. Reading the dump and registering the fonts are outside the clock.
"""
import json
import os
import sys
import time

from reportlab import rl_config
from reportlab.pdfbase import pdfmetrics
from reportlab.pdfbase.ttfonts import TTFont
from reportlab.pdfgen import canvas

rl_config.useA85 = 0  # plain binary streams: faster, and a fifth smaller


class Page:
    """One page; what the state already is is not set again."""

    def __init__(self, toile, largeur, hauteur):
        self.toile = toile
        self.police = self.couleur = self.fond = self.plume = None
        toile.setPageSize((largeur, hauteur))

    def remplir(self, couleur):
        if couleur != self.fond:
            self.toile.setFillColorRGB(*couleur)
            self.fond = couleur

    def tracer(self, epaisseur, couleur, tiret):
        if couleur != self.couleur:
            self.toile.setStrokeColorRGB(*couleur)
            self.couleur = couleur
        if (epaisseur, tiret) != self.plume:
            self.toile.setLineWidth(epaisseur)
            self.toile.setDash([tiret] if tiret else [])
            self.plume = (epaisseur, tiret)

    def texte(self, x, y, police, taille, couleur, texte):
        if (police, taille) != self.police:
            self.toile.setFont(police, taille)
            self.police = (police, taille)
        self.remplir(couleur)
        self.toile.drawString(x, y, texte)

    def ligne(self, x1, y1, x2, y2, epaisseur, couleur, tiret):
        self.tracer(epaisseur, couleur, tiret)
        self.toile.line(x1, y1, x2, y2)

    def rectangle(self, x, y, largeur, hauteur, epaisseur, couleur, fond):
        if epaisseur:
            self.tracer(epaisseur, couleur, 0)
        if fond:
            self.remplir(fond)
        self.toile.rect(x, y, largeur, hauteur, stroke=int(epaisseur > 0), fill=int(fond is not None))


SORTES = {"t": Page.texte, "l": Page.ligne, "r": Page.rectangle}


def dessiner(pages, chemin):
    toile = canvas.Canvas(chemin, pageCompression=1)
    for largeur, hauteur, elements in pages:
        page = Page(toile, largeur, hauteur)
        for sorte, *valeurs in elements:
            SORTES[sorte](page, *valeurs)
        toile.showPage()
    toile.save()


def main():
    vidage, chemin = sys.argv[1:]
    with open(vidage, encoding="utf-8") as fichier:
        donnees = json.load(fichier)
    for nom, police in donnees["polices"].items():
        pdfmetrics.registerFont(TTFont(nom, police))
    print("pret", flush=True)
    for _ in sys.stdin:
        debut = time.perf_counter()
        dessiner(donnees["pages"], chemin)
        print(time.perf_counter() - debut, os.path.getsize(chemin), flush=True)


main()
