"""What new presentations and new documents have in common."""

from kit import deck

NAME = "Murvane"
DARK, LIGHT = "3A4552", "EDF0F3"
ACCENTS = ("2F6FB3", "DD7A2B", "7D8894", "E3B23C", "3D9C97", "6C9F45")
LINKS = ("1F62AD", "7A5192")
# Calibri Light has no twin of the same widths outside Office, so titles would look different on each machine.
FONTS = ("Calibri", "Calibri")


def theme():
    return deck.theme(NAME, DARK, LIGHT, ACCENTS, LINKS, FONTS)
