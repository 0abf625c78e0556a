#!/usr/bin/env python3
"""Writes the 78 card pictures of the deck as SVG files into deck/pictures/.

Every card shares one frame: a cream card with a navy edge and a gold rule,
the numeral or rank at the top, a coloured panel in the middle and the name at
the bottom. The Major Arcana carry their emblem on a night-blue panel; the
suits have their own panel colour and show their symbol, once per pip; a
court card shows a figure of its rank holding it.

The output is committed; run this again only after changing the drawings:
    python3 deck/make_pictures.py
"""
import math
import os
import re

W, H = 210, 360          # 70 x 120 mm
CX, CY = 105, 174        # centre of the picture panel
PX, PY, PW, PH = 18, 48, 174, 252

NAVY = "#1d2440"
GOLD = "#e2b64e"
DGOLD = "#a9812f"
IVORY = "#f5eedb"
DARK = "#141833"
RED = "#b8412f"
FONT = "DejaVu Serif"

PANELS = {
    0: ("#1f2550", "#3b4690"),   # Major Arcana: night blue
    1: ("#174c5e", "#2f8095"),   # Cups: sea blue
    2: ("#6e2818", "#b1502b"),   # Wands: ember red
    3: ("#244b26", "#4c8047"),   # Pentacles: leaf green
    4: ("#2f3545", "#606c82"),   # Swords: slate
}

ROMAN = ["0", "I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI",
         "XII", "XIII", "XIV", "XV", "XVI", "XVII", "XVIII", "XIX", "XX", "XXI"]

MAJOR = ["The Fool", "The Magician", "The High Priestess", "The Empress", "The Emperor",
         "The Hierophant", "The Lovers", "The Chariot", "Strength", "The Hermit",
         "Wheel of Fortune", "Justice", "The Hanged Man", "Death", "Temperance",
         "The Devil", "The Tower", "The Star", "The Moon", "The Sun", "Judgement",
         "The World"]
SUITS = ["Cups", "Wands", "Pentacles", "Swords"]
RANKS = ["Ace", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine", "Ten",
         "Page", "Knight", "Queen", "King"]


def f(v):
    """A number as short SVG text."""
    s = f"{v:.2f}".rstrip("0").rstrip(".")
    return "0" if s == "-0" else s


def g(content, x=0, y=0, s=1, rot=0):
    t = f"translate({f(x)},{f(y)})"
    if rot:
        t += f" rotate({f(rot)})"
    if s != 1:
        t += f" scale({f(s)})"
    return f'<g transform="{t}">{content}</g>'


def star_points(cx, cy, n, r1, r2, start=-90):
    pts = []
    for i in range(2 * n):
        r = r1 if i % 2 == 0 else r2
        a = math.radians(start + i * 180 / n)
        pts.append(f"{f(cx + r * math.cos(a))},{f(cy + r * math.sin(a))}")
    return " ".join(pts)


def star(cx, cy, n, r1, r2, fill=GOLD, stroke=DGOLD, sw=0.8, start=-90):
    return (f'<polygon points="{star_points(cx, cy, n, r1, r2, start)}" fill="{fill}" '
            f'stroke="{stroke}" stroke-width="{sw}" stroke-linejoin="round"/>')


def rays(cx, cy, r1, r2, n, color=GOLD, width=2, offset=0):
    out = []
    for i in range(n):
        a = math.radians(offset + i * 360 / n)
        out.append(f'<line x1="{f(cx + r1 * math.cos(a))}" y1="{f(cy + r1 * math.sin(a))}" '
                   f'x2="{f(cx + r2 * math.cos(a))}" y2="{f(cy + r2 * math.sin(a))}" '
                   f'stroke="{color}" stroke-width="{width}" stroke-linecap="round"/>')
    return "".join(out)


# ---------------------------------------------------------------- suit symbols
# Each symbol is drawn in a box of about 40 x 40 around the origin.

def cup(fill=GOLD):
    return ('<path d="M-14,-15 H14 C14,-1 8,6 0,7 C-8,6 -14,-1 -14,-15 Z" '
            f'fill="{fill}" stroke="{NAVY}" stroke-width="1.4"/>'
            f'<ellipse cx="0" cy="-15" rx="14" ry="3" fill="{IVORY}" stroke="{NAVY}" stroke-width="1.2"/>'
            f'<rect x="-2" y="7" width="4" height="8" fill="{fill}" stroke="{NAVY}" stroke-width="1.2"/>'
            f'<ellipse cx="0" cy="16" rx="9" ry="3" fill="{fill}" stroke="{NAVY}" stroke-width="1.4"/>')


def wand(length=40):
    """A budding wand; held ones are longer and bud along their length."""
    h = length / 2
    leaf = '<ellipse cx="0" cy="0" rx="4.5" ry="2" fill="#8fbf5a" stroke="#2c4a1c" stroke-width="0.8"/>'
    buds = [(6, -h + 6, -30), (-6, -h + 16, 30), (6, -h + 29, -30)]
    if length > 60:
        buds += [(-6, h * 0.15, 30), (6, h * 0.5, -30)]
    return (f'<rect x="-2.6" y="{f(-h)}" width="5.2" height="{f(length)}" rx="2.6" fill="#c9934f" '
            f'stroke="{NAVY}" stroke-width="1.3"/>'
            f'<path d="M-2.6,{f(-h + 8)} h5.2 M-2.6,{f(h - 14)} h5.2" stroke="#8a5a2b" stroke-width="1"/>'
            + "".join(g(leaf, x, y, 1, a) for x, y, a in buds))


def pentacle():
    return (f'<circle cx="0" cy="0" r="17" fill="{GOLD}" stroke="{NAVY}" stroke-width="1.5"/>'
            f'<circle cx="0" cy="0" r="13.5" fill="none" stroke="{NAVY}" stroke-width="1"/>'
            f'<polygon points="{pentagram_points(0, 0, 12.5)}" fill="none" stroke="{NAVY}" '
            'stroke-width="1.3" stroke-linejoin="round"/>')


def pentagram_points(cx, cy, r, start=-90):
    pts = []
    for i in range(5):
        a = math.radians(start + i * 144)
        pts.append(f"{f(cx + r * math.cos(a))},{f(cy + r * math.sin(a))}")
    return " ".join(pts)


def sword():
    return (f'<polygon points="0,-21 3.2,-16 3.2,9 -3.2,9 -3.2,-16" fill="{IVORY}" '
            f'stroke="{NAVY}" stroke-width="1.2" stroke-linejoin="round"/>'
            '<line x1="0" y1="-16" x2="0" y2="8" stroke="#9aa3b5" stroke-width="1"/>'
            f'<rect x="-10" y="9" width="20" height="3.4" rx="1.2" fill="{GOLD}" stroke="{NAVY}" stroke-width="1"/>'
            f'<rect x="-1.8" y="12.4" width="3.6" height="6" fill="#6b4a2b" stroke="{NAVY}" stroke-width="0.8"/>'
            f'<circle cx="0" cy="20" r="2.6" fill="{GOLD}" stroke="{NAVY}" stroke-width="0.9"/>')


SYMBOL = {1: cup, 2: wand, 3: pentacle, 4: sword}


def symbol(group):
    return SYMBOL[group]()


# ---------------------------------------------------------------- pips

PIPS = {
    1: [(0, 0)],
    2: [(0, -64), (0, 64)],
    3: [(0, -78), (0, 0), (0, 78)],
    4: [(-36, -60), (36, -60), (-36, 60), (36, 60)],
    5: [(-36, -66), (36, -66), (0, 0), (-36, 66), (36, 66)],
    6: [(-36, -78), (36, -78), (-36, 0), (36, 0), (-36, 78), (36, 78)],
    7: [(-36, -80), (36, -80), (0, -40), (-36, 0), (36, 0), (-36, 80), (36, 80)],
    8: [(-36, -84), (36, -84), (0, -42), (-36, 0), (36, 0), (0, 42), (-36, 84), (36, 84)],
    9: [(-38, -90), (38, -90), (-38, -30), (38, -30), (0, 0), (-38, 30), (38, 30),
        (-38, 90), (38, 90)],
    10: [(-38, -96), (38, -96), (0, -64), (-38, -32), (38, -32), (-38, 32), (38, 32),
         (0, 64), (-38, 96), (38, 96)],
}


def pip_panel(group, n):
    if n == 1:
        glow = (f'<circle cx="0" cy="0" r="70" fill="{IVORY}" opacity="0.10"/>'
                f'<circle cx="0" cy="0" r="50" fill="{IVORY}" opacity="0.12"/>'
                + rays(0, 0, 62, 92, 24, GOLD, 1.6) + rays(0, 0, 66, 80, 24, GOLD, 1, 7.5))
        return glow + g(symbol(group), 0, 0, 3.1)
    scale = {2: 1.7, 3: 1.6, 4: 1.6, 5: 1.5, 6: 1.45, 7: 1.3, 8: 1.2, 9: 1.15, 10: 1.1}[n]
    if group in (2, 4) and n > 3:  # the long, narrow symbols can stand taller
        scale *= 1.2
    return "".join(g(symbol(group), x, y, scale) for x, y in PIPS[n])


# ---------------------------------------------------------------- court figures
# Each court card shows its rank as a figure holding the suit's symbol: the
# Page stands, the Knight rides, the Queen sits under a low crown of pearls
# and the King, bearded, sits under a tall pointed crown. Each suit has its
# own land behind the figure (sea, desert, fields, windy sky), its own clothes
# and its own pose.

SKIN = "#efd7b0"
HAIR = "#7a4a24"
STEEL = "#b9c0cf"

# robe, cloak and a third colour for hats, plumes and linings, by suit
DRESS = {
    1: ("#e6edf3", "#7d3f8c", "#3f6fc0"),
    2: ("#f2c14e", "#3b4a8a", "#b8412f"),
    3: ("#8a2f3f", "#e2b64e", "#3d6b34"),
    4: ("#6d8fd4", "#8a3b5a", "#c4c9d6"),
}


def shape(d, fill, sw=1.3, edge=NAVY):
    return f'<path d="{d}" fill="{fill}" stroke="{edge}" stroke-width="{f(sw)}" stroke-linejoin="round"/>'


def limb(pts, fill, w=6):
    """An arm, leg or staff: a round-ended stroke with a navy edge."""
    d = "M" + " L".join(f"{f(x)},{f(y)}" for x, y in pts)
    line = '<path d="{}" fill="none" stroke="{}" stroke-width="{}" stroke-linecap="round" stroke-linejoin="round"/>'
    return line.format(d, NAVY, f(w + 2.6)) + line.format(d, fill, f(w))


def hand(x, y, r=3.4):
    return f'<circle cx="{f(x)}" cy="{f(y)}" r="{f(r)}" fill="{SKIN}" stroke="{NAVY}" stroke-width="1.1"/>'


def mirror(content):
    return f'<g transform="scale(-1,1)">{content}</g>'


def held(art, hx, hy, s=1, rot=0, grip=(0, 0)):
    """Places a symbol so that its grip point lies in the hand at (hx, hy)."""
    a = math.radians(rot)
    gx, gy = grip[0] * s, grip[1] * s
    return g(art, hx - gx * math.cos(a) + gy * math.sin(a), hy - gx * math.sin(a) - gy * math.cos(a), s, rot)


CUP_STEM, SWORD_GRIP = (0, 14), (0, 15.5)  # where a hand holds a cup or a sword


def long_hair(x, y, hair, r=10):
    """Hair that falls behind the shoulders; drawn before the body."""
    return shape(f"M{f(x - r)},{f(y - 3)} C{f(x - r - 5)},{f(y + 12)} {f(x - r - 6)},{f(y + 24)} {f(x - r - 3)},{f(y + 28)} "
                 f"H{f(x + r + 3)} C{f(x + r + 6)},{f(y + 24)} {f(x + r + 5)},{f(y + 12)} {f(x + r)},{f(y - 3)} Z", hair, 1.1)


def head(x, y, hair=HAIR, beard=None, r=10):
    """A face seen from the front, with a cap of hair and, if given a colour, a beard."""
    out = f'<circle cx="{f(x)}" cy="{f(y)}" r="{f(r)}" fill="{SKIN}" stroke="{NAVY}" stroke-width="1.3"/>'
    out += shape(f"M{f(x - r)},{f(y - 1)} C{f(x - r)},{f(y - r * 1.4)} {f(x + r)},{f(y - r * 1.4)} {f(x + r)},{f(y - 1)} "
                 f"C{f(x + r * 0.6)},{f(y - r * 0.8)} {f(x - r * 0.6)},{f(y - r * 0.8)} {f(x - r)},{f(y - 1)} Z", hair, 1)
    out += (f'<circle cx="{f(x - 3.6)}" cy="{f(y + 1)}" r="1.2" fill="{NAVY}"/>'
            f'<circle cx="{f(x + 3.6)}" cy="{f(y + 1)}" r="1.2" fill="{NAVY}"/>')
    if beard:
        out += shape(f"M{f(x - r + 0.3)},{f(y + 3)} C{f(x - r + 1)},{f(y + r + 8)} {f(x - 4)},{f(y + r + 14)} {f(x)},{f(y + r + 17)} "
                     f"C{f(x + 4)},{f(y + r + 14)} {f(x + r - 1)},{f(y + r + 8)} {f(x + r - 0.3)},{f(y + 3)} "
                     f"C{f(x + 5)},{f(y + 10)} {f(x - 5)},{f(y + 10)} {f(x - r + 0.3)},{f(y + 3)} Z", beard, 1.1)
        out += shape(f"M{f(x)},{f(y + 5)} C{f(x - 3)},{f(y + 3.5)} {f(x - 7)},{f(y + 4)} {f(x - 8)},{f(y + 8)} "
                     f"C{f(x - 5)},{f(y + 6.5)} {f(x - 2)},{f(y + 7)} {f(x)},{f(y + 7)} "
                     f"C{f(x + 2)},{f(y + 7)} {f(x + 5)},{f(y + 6.5)} {f(x + 8)},{f(y + 8)} "
                     f"C{f(x + 7)},{f(y + 4)} {f(x + 3)},{f(y + 3.5)} {f(x)},{f(y + 5)} Z", beard, 0.8)
    else:
        out += f'<path d="M{f(x - 2.5)},{f(y + 5.5)} q2.5,1.8 5,0" stroke="{NAVY}" stroke-width="1" fill="none"/>'
    return out


def king_crown(jewel):
    """Tall and pointed, a cross on top; its band sits at y = 0."""
    return (shape("M-11,0 L-13,-14 L-6,-8 L0,-19 L6,-8 L13,-14 L11,0 Z", GOLD, 1.1)
            + f'<rect x="-12" y="-2" width="24" height="5" rx="1" fill="{GOLD}" stroke="{NAVY}" stroke-width="1"/>'
            + f'<path d="M0,-19 V-26 M-3,-23 H3" stroke="{GOLD}" stroke-width="2" stroke-linecap="round"/>'
            + f'<circle cx="0" cy="0.5" r="1.7" fill="{jewel}"/><circle cx="-7" cy="0.5" r="1.3" fill="{RED}"/>'
            + f'<circle cx="7" cy="0.5" r="1.3" fill="{RED}"/>')


def queen_crown(jewel):
    """A low circlet of rounded arches with a pearl on each; its band sits at y = 0."""
    return (shape("M-11,1 L-11,-6 Q-8,-4 -6.5,-9 Q-3,-4 0,-12 Q3,-4 6.5,-9 Q8,-4 11,-6 L11,1 Z", GOLD, 1)
            + "".join(f'<circle cx="{x}" cy="{y}" r="1.6" fill="{IVORY}" stroke="{NAVY}" stroke-width="0.6"/>'
                      for x, y in [(-11, -7), (-6.5, -10), (6.5, -10), (11, -7)])
            + f'<circle cx="0" cy="-14" r="2.6" fill="{IVORY}" stroke="{NAVY}" stroke-width="0.8"/>'
            + f'<circle cx="0" cy="-1.5" r="1.6" fill="{jewel}"/>')


# ----- small creatures and ornaments

def shell():
    ribs = "".join(f'<path d="M0,8 L{f(16 * math.cos(math.radians(a)))},{f(8 - 16 * math.sin(math.radians(a)))}" '
                   f'stroke="{NAVY}" stroke-width="0.8"/>' for a in range(30, 151, 24))
    return shape("M-16,8 A16,16 0 0 1 16,8 Z", "#f0d9c4") + ribs + shape("M-5,8 H5 L3,13 H-3 Z", "#f0d9c4", 1)


def butterfly(fill="#c4c9d6"):
    wings = (shape("M0,0 C-6,-12 -16,-12 -14,-2 C-12,2 -6,2 0,0 Z", fill, 1)
             + shape("M0,0 C-4,4 -12,10 -8,12 C-4,12 -2,6 0,0 Z", fill, 1))
    return wings + mirror(wings) + f'<path d="M0,-4 V6" stroke="{NAVY}" stroke-width="2" stroke-linecap="round"/>'


def bull_head():
    """A bull's face with its horns, about 44 across."""
    fill = "#8a5a34"
    horn_and_ear = (shape("M-8,-10 C-16,-12 -22,-18 -20,-26 C-16,-20 -10,-18 -4,-16 Z", IVORY, 1)
                    + shape("M-9,-14 L-18,-12 L-11,-6 Z", fill, 1))
    return (horn_and_ear + mirror(horn_and_ear)
            + shape("M-10,-16 C-4,-19 4,-19 10,-16 C11,-4 9,8 7,14 H-7 C-9,8 -11,-4 -10,-16 Z", fill)
            + f'<ellipse cx="0" cy="13" rx="8" ry="5" fill="#d9a07a" stroke="{NAVY}" stroke-width="1"/>'
            + f'<circle cx="-3" cy="13" r="1.2" fill="{NAVY}"/><circle cx="3" cy="13" r="1.2" fill="{NAVY}"/>'
            + f'<circle cx="-5" cy="-6" r="1.5" fill="{NAVY}"/><circle cx="5" cy="-6" r="1.5" fill="{NAVY}"/>')


def fish(fill="#e08a4a"):
    """A fish leaping to the right, about 30 long."""
    return (shape("M-14,0 C-6,-8 8,-8 14,0 C8,7 -6,7 -14,0 Z", fill, 1)
            + shape("M-13,0 L-21,-7 L-19,0 L-21,7 Z", fill, 1)
            + f'<circle cx="8" cy="-1.5" r="1.3" fill="{NAVY}"/>'
            + f'<path d="M-2,-5 C0,-1 0,2 -2,5" stroke="{NAVY}" stroke-width="0.8" fill="none"/>')


def black_cat():
    """The Queen of Wands' cat, sitting, about 30 tall."""
    ink = "#0b0c18"
    return (shape("M-9,14 C-12,2 -8,-6 0,-6 C8,-6 12,2 9,14 Z", ink, 1)
            + f'<path d="M8,12 C18,12 20,4 15,0" fill="none" stroke="{ink}" stroke-width="3" stroke-linecap="round"/>'
            + shape("M-7,-8 L-8,-18 L-3,-13 H3 L8,-18 L7,-8 C6,-2 -6,-2 -7,-8 Z", ink, 1)
            + f'<circle cx="-3" cy="-9" r="1.5" fill="{GOLD}"/><circle cx="3" cy="-9" r="1.5" fill="{GOLD}"/>')


def rabbit():
    """The Queen of Pentacles' rabbit, crouching, about 26 long."""
    fill = "#d8cbb4"
    return (shape("M-12,6 C-14,-4 -4,-8 4,-6 C10,-5 12,0 10,6 Z", fill, 1)
            + shape("M6,-5 C8,-18 12,-18 11,-5 Z", fill, 1)
            + f'<circle cx="10" cy="-2" r="5" fill="{fill}" stroke="{NAVY}" stroke-width="1"/>'
            + f'<circle cx="12" cy="-3" r="1" fill="{NAVY}"/><circle cx="-12" cy="3" r="3" fill="{IVORY}"/>')


def salamander():
    """The King of Wands' salamander, its tail curled, about 36 long."""
    fire = "#f08a2c"
    legs = "".join(f'<path d="M{x},{y} l{dx},{dy}" stroke="{fire}" stroke-width="2.4" stroke-linecap="round"/>'
                   for x, y, dx, dy in [(8, -2, 3, -6), (8, 2, 3, 6), (-6, -2, -3, -6), (-6, 2, -3, 6)])
    return (legs + f'<path d="M-8,0 C-16,0 -22,-2 -24,-8 C-26,-14 -18,-16 -17,-10" fill="none" stroke="{NAVY}" '
            f'stroke-width="4.6" stroke-linecap="round"/>'
            + f'<path d="M-8,0 C-16,0 -22,-2 -24,-8 C-26,-14 -18,-16 -17,-10" fill="none" stroke="{fire}" '
            f'stroke-width="2.6" stroke-linecap="round"/>'
            + shape("M-9,0 C-6,-4 8,-4 12,-2 C16,-3 20,-2 20,0 C20,2 16,3 12,2 C8,4 -6,4 -9,0 Z", fire, 1)
            + f'<circle cx="16" cy="-1" r="0.9" fill="{NAVY}"/>')


def grapes(x, y):
    return "".join(f'<circle cx="{f(x + dx)}" cy="{f(y + dy)}" r="1.9" fill="#5a3a8a" stroke="{NAVY}" stroke-width="0.4"/>'
                   for dx, dy in [(-2, 0), (2, 0), (0, 3.4), (-4, -3.4), (0, -3.4), (4, -3.4)])


def birds(points):
    return "".join(f'<path d="M{x - 5},{y - 2} q2.5,-3 5,0 q2.5,-3 5,0" fill="none" stroke="{NAVY}" stroke-width="1.2"/>'
                   for x, y in points)


def pyramid(x, y, w):
    return (shape(f"M{x - w},{y} L{x},{y - w * 0.8} L{x + w},{y} Z", "#d59a55", 1)
            + shape(f"M{x},{y - w * 0.8} L{x + w},{y} H{x + w * 0.35} Z", "#b77a3e", 0.6))


def castle(x, y):
    return (tower_block(x - 12, y - 26, 10, 26, "#c9c2a8") + tower_block(x + 2, y - 34, 12, 34, "#c9c2a8")
            + f'<rect x="{x + 6}" y="{y - 26}" width="4" height="7" rx="2" fill="{DARK}"/>')


# ----- the land behind each suit's figures

# Ground that reaches the panel's foot keeps inside its rounded corners.
FOOT = "V122 Q87,126 83,126 H-83 Q-87,126 -87,122 Z"


def court_land(group):
    if group == 1:  # the sea
        return (f'<path d="M-87,62 C-40,56 40,62 87,56 {FOOT}" fill="#14506a" opacity="0.85"/>'
                + waves(72, 80, "#9cc2f0", 5, 11))
    if group == 2:  # the desert and its pyramids under the sun
        return (f'<circle cx="-62" cy="-102" r="12" fill="#f5c04a" opacity="0.9"/>'
                + pyramid(-62, 64, 18) + pyramid(-40, 64, 11) + pyramid(66, 64, 14)
                + f'<path d="M-87,62 C-40,58 30,66 87,60 {FOOT}" fill="#e0a661"/>'
                + f'<path d="M-87,96 C-50,88 -10,100 30,92 C50,88 70,92 87,88" fill="none" stroke="#c98a4a" stroke-width="1.5"/>')
    if group == 3:  # green fields, a tree and a ploughed strip
        furrows = "".join(f'<path d="M{f(x * 0.7)},68 L{x},123" stroke="#3f6b35" stroke-width="1.2"/>' for x in range(-78, 79, 13))
        return (f'<path d="M-87,66 C-50,54 -10,62 20,58 C50,54 70,60 87,56 {FOOT}" fill="#6f9f4a"/>'
                + furrows
                + f'<path d="M-66,62 V30" stroke="#6b4a2b" stroke-width="4"/>'
                + f'<circle cx="-66" cy="22" r="14" fill="#3d7a3a" stroke="{NAVY}" stroke-width="1"/>'
                + f'<circle cx="-74" cy="30" r="9" fill="#3d7a3a" stroke="{NAVY}" stroke-width="1"/>')
    # Swords: clouds driven by the wind, birds, the bare ground
    return (cloud(-54, -100, 1.0) + cloud(56, -70, 0.9) + cloud(-60, -24, 0.8)
            + birds([(48, -104), (62, -110), (70, -98)])
            + f'<path d="M-87,70 C-40,64 40,72 87,64 {FOOT}" fill="#8a93a8"/>'
            + f'<path d="M-87,90 C-40,84 40,92 87,86" fill="none" stroke="#6b7488" stroke-width="1.5"/>')


# ----- the Page: a young figure standing, holding the symbol out

def page(group):
    robe, cloak, third = DRESS[group]
    hat = (shape("M-12,-78 C-12,-88 12,-88 13,-78 C18,-80 20,-76 16,-74 H-14 C-18,-76 -16,-80 -12,-78 Z", third, 1.1)
           + f'<path d="M6,-84 C12,-98 22,-96 26,-90 C20,-92 12,-88 8,-82" fill="{IVORY}" stroke="{NAVY}" stroke-width="0.9"/>')
    stance = {1: (-8, 10), 2: (-20, 12), 3: (-10, 16), 4: (-26, 26)}[group]  # where the feet stand
    legs = "".join(limb([(side * 7, 22), ((side * 7 + x) / 2, 58), (x, 94)], "#6b4a2b", 7)
                   + shape(f"M{x - 6},93 H{x + 6} L{x + 8},99 H{x - 7} Z", NAVY, 0.8)
                   for side, x in zip((-1, 1), stance))
    tunic = (shape("M-15,-54 H15 L12,-20 L23,26 H-23 L-12,-20 Z", robe)
             + f'<path d="M-12,-20 H12" stroke="{GOLD}" stroke-width="3"/>'
             + shape("M-15,-54 C-22,-40 -24,-10 -20,14 L-14,-20 Z", cloak, 1))
    poses = {
        # the cup raised on one hand, a fish looking out of it; the other hand on the hip
        1: ([(-15, -50), (-30, -34), (-32, -52)], [(15, -50), (28, -32), (14, -22)],
            g(fish(), -31, -85, 0.5, -75) + held(cup(), -32, -52, 0.85, 0, CUP_STEM)),
        # the tall wand held upright with both hands
        2: ([(-15, -50), (2, -24), (24, -26)], [(15, -50), (26, -40), (24, -50)],
            held(wand(180), 24, -38, 1, 4, (0, -20))),
        # the pentacle held up before the eyes in both hands
        3: ([(-15, -50), (-30, -40), (-40, -62)], [(15, -50), (4, -40), (-18, -64)],
            g(pentacle(), -29, -74, 0.85)),
        # the sword raised on guard in both hands
        4: ([(-15, -50), (-4, -32), (18, -36)], [(15, -50), (26, -40), (22, -36)],
            held(sword(), 20, -36, 2.2, 20, SWORD_GRIP)),
    }
    near, far, thing = poses[group]
    body = legs + tunic + limb(far, robe, 5.5) + head(0, -66, HAIR) + hat
    return g(body + thing + limb(near, robe, 5.5) + hand(*near[-1]) + hand(*far[-1]), 0, 2, 1.12)


# ----- the Knight: on horseback, in four gaits

HORSE = {1: "#ecebe6", 2: "#c07a3a", 3: "#5a3b2a", 4: "#d9dde6"}
LEGS = {  # hip, knee, hoof of the far front, near front, far hind, near hind legs
    "walk": [[(18, 6), (20, 28), (18, 50)], [(26, 6), (36, 24), (32, 38)],
             [(-22, 6), (-28, 28), (-30, 50)], [(-30, 6), (-26, 28), (-22, 50)]],
    "rear": [[(18, 6), (34, 14), (30, 28)], [(26, 6), (42, 18), (36, 32)],
             [(-22, 6), (-18, 28), (-16, 50)], [(-30, 6), (-28, 28), (-24, 50)]],
    "stand": [[(18, 6), (19, 28), (18, 50)], [(26, 6), (27, 28), (28, 50)],
              [(-22, 6), (-23, 28), (-22, 50)], [(-30, 6), (-31, 28), (-30, 50)]],
    "gallop": [[(18, 6), (34, 20), (48, 26)], [(26, 6), (44, 14), (58, 10)],
               [(-22, 6), (-36, 22), (-52, 32)], [(-30, 6), (-46, 18), (-62, 22)]],
}


def horse(group, gait):
    coat = HORSE[group]
    mane = "#6b4a2b" if group in (1, 4) else "#1a1410"
    legs = LEGS[gait]
    hoofed = [limb(pts, coat, 6.5) + f'<circle cx="{f(pts[-1][0])}" cy="{f(pts[-1][1])}" r="3.6" fill="{NAVY}"/>'
              for pts in legs]
    far, near = hoofed[0] + hoofed[2], hoofed[1] + hoofed[3]
    return (far
            + f'<path d="M-37,-8 C-52,-6 -54,12 -48,26" fill="none" stroke="{mane}" stroke-width="6" stroke-linecap="round"/>'
            + shape("M-38,-6 C-40,-20 -24,-26 -4,-25 C14,-26 30,-24 36,-12 C40,0 32,12 20,12 H-22 C-34,12 -38,4 -38,-6 Z", coat)
            + shape("M20,-20 C26,-34 32,-46 40,-54 L44,-60 L48,-54 C56,-50 64,-40 68,-32 C70,-27 66,-23 61,-25 "
                    "C55,-27 50,-31 46,-32 C42,-22 38,-10 34,-4 Z", coat)
            + shape("M42,-55 L44,-65 L48,-55 Z", coat, 1)
            + f'<path d="M22,-22 C28,-36 34,-48 42,-56" fill="none" stroke="{mane}" stroke-width="5" stroke-linecap="round"/>'
            + f'<circle cx="51" cy="-44" r="1.6" fill="{NAVY}"/>'
            + shape("M-16,-25 C-12,-10 8,-10 12,-25 Z", DRESS[group][1], 1)
            + near)


def knight(group):
    robe, cloak, third = DRESS[group]
    crest = {
        1: shape("M-6,-80 C-14,-88 -20,-84 -22,-78 C-16,-80 -12,-78 -8,-74 Z", IVORY, 0.9)
           + shape("M-6,-76 C-14,-82 -20,-78 -21,-72 C-15,-74 -11,-72 -8,-70 Z", IVORY, 0.9),
        2: shape("M-2,-82 C-10,-96 -22,-92 -28,-84 C-20,-86 -14,-84 -10,-78 C-18,-80 -24,-74 -26,-68 C-16,-74 -8,-74 -4,-76 Z",
                 "#f08a2c", 0.9),
        3: g(f'<path d="M0,0 V-10" stroke="#3d6b34" stroke-width="1.6"/>'
             '<ellipse cx="-3" cy="-9" rx="4" ry="2" fill="#8fbf5a" stroke="#2c4a1c" stroke-width="0.6" transform="rotate(30 -3 -9)"/>'
             '<ellipse cx="3" cy="-7" rx="4" ry="2" fill="#8fbf5a" stroke="#2c4a1c" stroke-width="0.6" transform="rotate(-30 3 -7)"/>', 0, -82),
        4: shape("M-4,-84 C-14,-92 -30,-88 -40,-80 C-30,-82 -20,-80 -14,-76 C-24,-76 -32,-70 -38,-64 C-26,-70 -14,-72 -6,-76 Z",
                 RED, 0.9),
    }[group]
    helmet = (f'<circle cx="2" cy="-68" r="9" fill="{SKIN}" stroke="{NAVY}" stroke-width="1.2"/>'
              + f'<circle cx="6" cy="-68" r="1.2" fill="{NAVY}"/>'
              + shape("M-8,-62 C-11,-74 -5,-81 3,-81 C9,-81 12,-76 12,-71 H4 V-62 Z", STEEL, 1.2)
              + crest)
    rider_leg = limb([(-2, -26), (10, -12), (6, 8)], STEEL, 7) + shape("M2,6 H12 V11 H1 Z", NAVY, 0.6)
    torso = shape("M-9,-24 L-7,-58 H9 L11,-24 Z", robe) + f'<path d="M-9,-30 H11" stroke="{GOLD}" stroke-width="2.5"/>'
    cape = shape("M-7,-58 C-20,-50 -28,-36 -30,-22 C-20,-26 -14,-28 -9,-30 Z", cloak, 1)
    reins = f'<path d="M22,-32 L62,-27" stroke="#4a2e1a" stroke-width="1.2"/>'
    poses = {  # gait, holding arm, symbol
        1: ("walk", [(4, -54), (18, -46), (32, -48)], held(cup(), 32, -48, 0.75, 0, CUP_STEM)),
        2: ("rear", [(4, -54), (14, -68), (18, -84)], held(wand(76), 18, -84, 1, -12, (0, 8))),
        3: ("stand", [(4, -54), (14, -42), (30, -44)], held(pentacle(), 30, -44, 0.75, 0, (0, 10))),
        4: ("gallop", [(4, -54), (16, -68), (26, -78)], held(sword(), 26, -78, 1.6, 40, SWORD_GRIP)),
    }
    gait, arm, thing = poses[group]
    rider = (cape + rider_leg + torso + limb([(-2, -54), (10, -40), (22, -32)], STEEL, 5) + hand(22, -32)
             + reins + helmet + thing + limb(arm, STEEL, 5) + hand(*arm[-1]))
    art = horse(group, gait) + rider
    if gait == "rear":
        art = f'<g transform="rotate(-22 -20 50)">{art}</g>'
    if group in (2, 4):  # the Knights of Wands and Swords ride to the left
        art = mirror(art)
    return g(art, {1: -6, 2: -8, 3: -6, 4: 0}[group], 40, 1.2)


# ----- the Queen and the King: seated on their thrones

def throne(group, wide):
    """The throne's back and seat, and apart from them its arms, which stand in front of a cloak."""
    top = {1: g(shell(), 0, -112, 1.1), 2: g(lion_head(), 0, -108, 0.17),
           3: g(bull_head(), 0, -106, 0.55), 4: g(butterfly(), 0, -110, 0.9)}[group]
    w = 40 if wide else 34
    stone = "#9a97b0" if group != 3 else "#8f8a78"
    back = (shape(f"M{-w},40 V-84 C{-w},-104 {w},-104 {w},-84 V40 Z", stone, 1.4) if not wide else
            shape(f"M{-w},40 V-92 L{-w + 10},-100 H{w - 10} L{w},-92 V40 Z", stone, 1.4))
    return (back + f'<path d="M{-w + 6},-80 H{w - 6} M{-w + 6},-40 H{w - 6}" stroke="#6f6c88" stroke-width="1"/>'
            + shape(f"M{-w - 6},10 H{w + 6} V30 H{-w - 6} Z", stone, 1.4)
            + shape(f"M{-w - 10},64 H{w + 10} V72 H{-w - 10} Z", "#6f6c88", 1.2) + top,
            "".join(shape(f"M{x},-2 H{x + 12} V30 H{x} Z", stone, 1.3)
                    + f'<circle cx="{x + 6}" cy="-5" r="4.5" fill="{GOLD}" stroke="{NAVY}" stroke-width="1"/>'
                    for x in (-w - 8, w - 4)))


def seated(group, wide, cloak, figure, extra):
    """A throne with its figure, a little larger than drawn, and what lies around it."""
    back, arms = throne(group, wide)
    return extra + g(back + cloak + arms + figure, 0, 12, 1.12)


def queen(group):
    robe, cloak, third = DRESS[group]
    hair = HAIR if group != 4 else "#3a2a20"
    veil = shape("M-9,-76 C-22,-70 -28,-40 -30,-14 H30 C28,-40 22,-70 9,-76 Z", IVORY if group != 1 else "#bcd3e6", 1)
    mantle = shape("M-17,-50 C-30,-42 -38,20 -40,66 H40 C38,20 30,-42 17,-50 Z", cloak)
    gown = (shape("M-14,-48 H14 L10,-16 C19,-8 25,4 25,16 L29,64 H-29 L-25,16 C-25,4 -19,-8 -10,-16 Z", robe)
            + f'<path d="M-10,-16 H10" stroke="{GOLD}" stroke-width="2.5"/>'
            + f'<path d="M-25,16 C-10,22 10,22 25,16" fill="none" stroke="{NAVY}" stroke-width="0.9"/>'
            + shape("M-14,64 C-14,60 -6,60 -6,64 Z M6,64 C6,60 14,60 14,64 Z", third, 0.8))
    crown = g(queen_crown(third), 0, -71)
    big_cup = (held(cup(), 0, 8, 0.95, 0, CUP_STEM)
               + shape("M-11,-21 C-9,-30 9,-30 11,-21 Z", GOLD, 1)
               + f'<path d="M0,-29 V-35 M-3,-32 H3" stroke="{GOLD}" stroke-width="2" stroke-linecap="round"/>'
               + f'<path d="M-13,-18 C-21,-18 -21,-6 -11,-4 M13,-18 C21,-18 21,-6 11,-4" fill="none" stroke="{GOLD}" stroke-width="2.2"/>')
    poses = {  # left arm, right arm (as seen), what she holds, what lies around her
        1: ([(-14, -44), (-24, -16), (-9, 8)], [(14, -44), (24, -16), (9, 8)], big_cup,
            waves(104, 80, "#9cc2f0", 2, 9)),
        2: ([(-14, -44), (-28, -20), (-32, -32)], [(14, -44), (24, -22), (22, -4)],
            held(wand(150), -32, -32, 1, 0, (0, -30))
            + f'<path d="M22,-4 C26,-14 28,-24 30,-34" stroke="#4c8047" stroke-width="2.4" fill="none"/>'
            + g(sunflower(), 30, -38, 0.5),
            g(black_cat(), 52, 92, 1.1)),
        3: ([(-14, -44), (-24, -18), (-14, 4)], [(14, -44), (24, -18), (14, 4)], g(pentacle(), 0, 2, 1.05),
            g(rabbit(), 60, 96, 1.0) + garland()),
        4: ([(-14, -44), (-30, -36), (-38, -56)], [(14, -44), (28, -24), (36, -34)],
            held(sword(), 36, -34, 1.8, 0, SWORD_GRIP),
            g(butterfly(), -66, -40, 0.7)),
    }
    left, right, thing, extra = poses[group]
    figure = (gown + limb(left, robe, 5.5) + limb(right, robe, 5.5)
              + head(0, -60, hair) + crown + thing + hand(*left[-1]) + hand(*right[-1]))
    return seated(group, False, veil + long_hair(0, -60, hair) + mantle, figure, extra)


def garland():
    """Roses and leaves hanging over the Queen of Pentacles."""
    out = []
    for side in (-1, 1):
        for i in range(9):
            t = i / 8
            x, y = side * (80 - 36 * t), -119 + 42 * t * t
            out.append(g('<ellipse cx="0" cy="0" rx="5" ry="2.2" fill="#4c8a3a" stroke="#2c4a1c" stroke-width="0.6"/>',
                         x, y, 1, side * (20 + 60 * t)))
            if i % 3 == 1:
                out.append(g(rose(RED), x, y + 5, 0.38))
    return "".join(out)


def king(group):
    robe, cloak, third = DRESS[group]
    hose = third if group != 4 else "#4a5470"
    mantle = (shape("M-21,-50 C-36,-44 -44,10 -46,40 H46 C44,10 36,-44 21,-50 Z", cloak)
              + f'<path d="M-44,40 H44" stroke="{IVORY}" stroke-width="5"/>'
              + "".join(f'<circle cx="{x}" cy="40" r="1" fill="{NAVY}"/>' for x in range(-40, 41, 8)))
    legs = (limb([(-12, 22), (-14, 42), (-14, 58)], hose, 8) + limb([(12, 22), (14, 42), (14, 58)], hose, 8)
            + shape("M-22,57 H-8 V64 H-24 Z M8,57 H22 L24,64 H8 Z", "#3a2a20", 0.8))
    tunic = (shape("M-19,-50 H19 L15,-10 C24,-2 30,10 30,24 C14,30 -14,30 -30,24 C-30,10 -24,-2 -15,-10 Z", robe)
             + f'<path d="M-15,-10 H15" stroke="{GOLD}" stroke-width="3"/>')
    if group == 3:
        tunic += grapes(-16, 10) + grapes(16, 12) + grapes(0, -28) + grapes(-8, -40) + grapes(8, -40)
    beard = {1: "#d9d6cf", 2: "#a8502a", 3: "#3a2a20", 4: "#d9d6cf"}[group]
    crown = g(king_crown(third), 0, -72)

    def sceptre(x, y):
        return (limb([(x, y - 40), (x, y + 36)], GOLD, 3)
                + f'<circle cx="{x}" cy="{y - 44}" r="5" fill="{GOLD}" stroke="{NAVY}" stroke-width="1"/>')
    poses = {
        1: ([(-19, -44), (-32, -22), (-30, -6)], [(19, -44), (32, -24), (30, -10)],
            held(cup(), -30, -6, 0.9, 0, CUP_STEM) + sceptre(30, -10),
            g(fish(), 66, 86, 0.9, -25) + shape("M-80,62 H-54 L-58,68 H-76 Z M-67,62 V44 L-57,60 Z", IVORY, 0.9)),
        2: ([(-19, -44), (-28, -20), (-20, 4)], [(19, -44), (30, -26), (32, -40)],
            held(wand(150), 32, -40, 1, 8, (0, -20)),
            g(salamander(), -50, 96, 1.3)),
        3: ([(-19, -44), (-30, -22), (-30, -10)], [(19, -44), (30, -16), (26, 6)],
            sceptre(-30, -10) + g(pentacle(), 26, 12, 0.95),
            castle(70, 58)),
        4: ([(-19, -44), (-26, -20), (-14, 2)], [(19, -44), (32, -24), (36, -28)],
            held(sword(), 36, -28, 1.9, 4, SWORD_GRIP),
            birds([(-70, -80), (-58, -88)])),
    }
    left, right, thing, extra = poses[group]
    figure = (legs + tunic + limb(left, robe, 7) + limb(right, robe, 7)
              + head(0, -62, beard, beard=beard, r=10.5) + crown + thing + hand(*left[-1]) + hand(*right[-1]))
    return seated(group, True, mantle, figure, extra)


def court_panel(group, rank):
    figure = {"Page": page, "Knight": knight, "Queen": queen, "King": king}[rank](group)
    return court_land(group) + figure


# ---------------------------------------------------------------- major emblems
# Drawn around the panel's centre; the panel reaches 87 to each side and 126
# up and down.

def heart(fill):
    return (f'<path d="M0,14 C-22,0 -22,-16 -11,-16 C-5,-16 0,-11 0,-6 C0,-11 5,-16 11,-16 '
            f'C22,-16 22,0 0,14 Z" fill="{fill}" stroke="{NAVY}" stroke-width="1.4"/>')


def rose(fill=IVORY):
    petals = "".join(
        f'<circle cx="{f(7 * math.cos(math.radians(a)))}" cy="{f(7 * math.sin(math.radians(a)))}" '
        f'r="6.5" fill="{fill}" stroke="{NAVY}" stroke-width="0.8"/>'
        for a in range(-90, 270, 72))
    return petals + f'<circle cx="0" cy="0" r="4" fill="{GOLD}" stroke="{NAVY}" stroke-width="0.8"/>'


def lemniscate(w, width):
    return (f'<path d="M0,0 C{f(w*0.35)},{f(-w*0.42)} {w},{f(-w*0.42)} {w},0 '
            f'C{w},{f(w*0.42)} {f(w*0.35)},{f(w*0.42)} 0,0 '
            f'C{f(-w*0.35)},{f(-w*0.42)} {-w},{f(-w*0.42)} {-w},0 '
            f'C{-w},{f(w*0.42)} {f(-w*0.35)},{f(w*0.42)} 0,0 Z" fill="none" stroke="{GOLD}" '
            f'stroke-width="{width}"/>')


def tower_block(x, y, w, h, fill="#8c8aa3"):
    merlons = "".join(f'<rect x="{f(x + i * w / 5)}" y="{f(y - 6)}" width="{f(w / 5)}" height="6" fill="{fill}" stroke="{NAVY}" stroke-width="1"/>'
                      for i in range(0, 5, 2))
    return (f'<rect x="{x}" y="{y}" width="{w}" height="{h}" fill="{fill}" stroke="{NAVY}" stroke-width="1.2"/>'
            + merlons)


def key(fill):
    return (f'<circle cx="0" cy="-36" r="10" fill="none" stroke="{fill}" stroke-width="5"/>'
            f'<rect x="-2.8" y="-27" width="5.6" height="62" fill="{fill}" stroke="{NAVY}" stroke-width="0.8"/>'
            f'<path d="M2.8,20 h10 v6 h-5 v4 h5 v5 h-10 Z" fill="{fill}" stroke="{NAVY}" stroke-width="0.8"/>')


def waves(y, width=80, color="#7fa6d9", count=3, gap=9):
    out = []
    for k in range(count):
        yy = y + k * gap
        d = f"M{-width},{yy}"
        for i in range(8):
            x0 = -width + i * width / 4
            d += f" q{f(width / 8)},-5 {f(width / 4)},0"
        out.append(f'<path d="{d}" fill="none" stroke="{color}" stroke-width="2" opacity="{f(0.9 - k * 0.2)}"/>')
    return "".join(out)


def cloud(x, y, s=1):
    return g(f'<path d="M-22,6 C-30,6 -30,-6 -20,-6 C-20,-16 -4,-18 0,-9 C6,-18 22,-14 20,-4 '
             f'C30,-4 30,6 22,6 Z" fill="{IVORY}" stroke="#b9b6cf" stroke-width="1.2"/>', x, y, s)


def sunflower():
    """A sunflower's head, about 40 across."""
    return ("".join(g(f'<ellipse cx="0" cy="-10" rx="4" ry="9" fill="#f5c542" stroke="{DGOLD}" stroke-width="0.6"/>', 0, 0, 1, a)
                    for a in range(0, 360, 30))
            + '<circle cx="0" cy="0" r="7" fill="#6b4a2b"/>')


def lion_head():
    """A lion's face in its mane, about 140 across."""
    mane = "".join(f'<circle cx="{f(52 * math.cos(math.radians(a)))}" cy="{f(52 * math.sin(math.radians(a)))}" r="17" '
                   f'fill="#c98b2e" stroke="{NAVY}" stroke-width="1"/>' for a in range(0, 360, 30))
    face = (f'<circle cx="0" cy="0" r="48" fill="#c98b2e"/>'
            f'<ellipse cx="0" cy="4" rx="34" ry="38" fill="#efc76a" stroke="{NAVY}" stroke-width="1.4"/>'
            f'<path d="M-16,-10 q6,-5 12,0 M4,-10 q6,-5 12,0" stroke="{NAVY}" stroke-width="2.4" fill="none" stroke-linecap="round"/>'
            f'<path d="M-8,10 H8 L0,20 Z" fill="{NAVY}"/>'
            f'<path d="M0,20 V26 M0,26 q-8,8 -14,2 M0,26 q8,8 14,2" stroke="{NAVY}" stroke-width="2" fill="none" stroke-linecap="round"/>'
            f'<circle cx="-26" cy="-30" r="7" fill="#efc76a" stroke="{NAVY}"/><circle cx="26" cy="-30" r="7" fill="#efc76a" stroke="{NAVY}"/>')
    return mane + face


def angel_head():
    """The World's angel: a face with golden hair between two wings, about 34 across."""
    wing = shape("M-6,2 C-9,-9 -17,-13 -17,-4 C-14,-5 -13,-2 -16,1 C-13,0 -10,3 -11,7 C-8,4 -6,5 -6,2 Z", IVORY, 0.9)
    return (wing + mirror(wing) + f'<circle cx="0" cy="-2" r="10.5" fill="none" stroke="{GOLD}" stroke-width="1.6"/>'
            + head(0, 1, GOLD, r=8.5))


def eagle_head():
    """An eagle's head in profile, looking right, about 30 across."""
    return (shape("M-11,14 C-13,2 -9,-10 1,-11 C7,-11 11,-8 12,-4 L9,0 C5,3 1,6 -1,10 C-2,12 -3,13 -3,14 Z", "#f3efe6", 1.1)
            + shape("M-11,14 C-12,8 -10,4 -7,2 C-6,6 -4,10 -3,14 Z", "#7a4a24", 0.8)
            + shape("M10,-6 C16,-7 19,-3 18,3 C16,0 14,-1 9,0 Z", GOLD, 1)
            + f'<circle cx="5" cy="-5" r="1.5" fill="{NAVY}"/>'
            + f'<path d="M1,-7.5 L8,-7" stroke="{NAVY}" stroke-width="1.1" stroke-linecap="round"/>')


def sphinx(body, stripe, face, edge):
    """A sphinx lying down and looking out: a lion's body and a human face in a
    striped headdress. Faces right; about 74 long and 46 tall."""
    tail = (f'<path d="M-30,9 C-36,9 -37,3 -33,0" fill="none" stroke="{edge}" stroke-width="4.4" stroke-linecap="round"/>'
            f'<path d="M-30,9 C-36,9 -37,3 -33,0" fill="none" stroke="{body}" stroke-width="2.4" stroke-linecap="round"/>')
    lion = (shape("M-32,12 C-36,-2 -28,-14 -16,-13 C-6,-12 2,-14 8,-15 C16,-15 21,-8 21,2 V4 H35 C39,4 40,8 39,12 Z",
                  body, 1.2, edge)
            + f'<path d="M-27,12 C-30,0 -20,-7 -12,-3 C-7,0 -8,7 -4,10 H3 M21,8 H37 M36,4 V12 M33,4 V8 M33,8 V12" '
            f'fill="none" stroke="{edge}" stroke-width="1" stroke-linejoin="round"/>')
    nemes = (shape("M4,-6 L6,-24 C7,-34 23,-34 24,-24 L26,-6 Z", stripe, 1.2, edge)
             + "".join(f'<path d="M{f(5.6 - k * 0.1)},{y} H{f(24.4 + k * 0.1)}" stroke="{body}" stroke-width="1.6"/>'
                       for k, y in enumerate(range(-22, -6, 4))))
    return (tail + lion + nemes
            + f'<ellipse cx="15" cy="-20" rx="6" ry="7.5" fill="{face}" stroke="{edge}" stroke-width="1"/>'
            + f'<path d="M8,-27 C11,-30 19,-30 22,-27" fill="none" stroke="{GOLD}" stroke-width="2"/>'
            + f'<circle cx="12.6" cy="-21" r="1" fill="{edge}"/><circle cx="17.4" cy="-21" r="1" fill="{edge}"/>'
            + f'<path d="M13.5,-16.5 H16.5" stroke="{edge}" stroke-width="0.9"/>'
            + shape("M13.8,-12.6 H16.2 L15.8,-8 H14.2 Z", stripe, 0.7, edge))


def major_emblem(n):
    if n == 0:  # The Fool: sun, cliff edge, bindle and white rose
        return (f'<circle cx="44" cy="-82" r="17" fill="{GOLD}"/>' + rays(44, -82, 22, 32, 12)
                + f'<path d="M-87,72 L12,72 L24,88 L20,126 L-87,126 Z" fill="{DARK}" stroke="{GOLD}" stroke-width="1.5"/>'
                + f'<line x1="-52" y1="58" x2="14" y2="-34" stroke="#c9934f" stroke-width="4.5" stroke-linecap="round"/>'
                + f'<path d="M6,-40 C14,-58 38,-52 32,-34 C28,-22 10,-22 6,-40 Z" fill="{RED}" stroke="{NAVY}" stroke-width="1.4"/>'
                + f'<path d="M12,-36 q8,4 16,0" stroke="{GOLD}" stroke-width="1.4" fill="none"/>'
                + f'<path d="M-40,20 V52" stroke="#6f9f4a" stroke-width="2.5"/>'
                + g('<ellipse cx="0" cy="0" rx="6" ry="2.6" fill="#8fbf5a"/>', -46, 38, 1, -30)
                + g(rose(), -40, 8, 1.5))
    if n == 1:  # The Magician: lemniscate, raised wand, the four tools on the table
        return (g(lemniscate(30, 4.5), 0, -92)
                + f'<line x1="0" y1="-66" x2="0" y2="4" stroke="{IVORY}" stroke-width="6" stroke-linecap="round"/>'
                + f'<circle cx="0" cy="-66" r="4" fill="{GOLD}"/>'
                + rays(0, -66, 8, 18, 8, GOLD, 1.5)
                + f'<rect x="-74" y="36" width="148" height="9" rx="2" fill="{GOLD}" stroke="{NAVY}" stroke-width="1.4"/>'
                + f'<rect x="-64" y="45" width="128" height="66" fill="{DARK}" stroke="{GOLD}" stroke-width="1.4"/>'
                + g(cup(), -52, 17, 0.8) + g(pentacle(), -18, 19, 0.8)
                + g(sword(), 18, 19, 0.8, 90) + g(wand(), 52, 17, 0.8, 20)
                + f'<path d="M-64,60 H64" stroke="{GOLD}" stroke-width="0.8"/>')
    if n == 2:  # The High Priestess: the dark and light pillars, crown and crescent
        return (f'<rect x="-72" y="-104" width="24" height="214" fill="#0b0d1e" stroke="{GOLD}" stroke-width="1.4"/>'
                f'<rect x="48" y="-104" width="24" height="214" fill="{IVORY}" stroke="{GOLD}" stroke-width="1.4"/>'
                f'<text x="-60" y="-70" font-family="{FONT}" font-size="14" fill="{IVORY}" text-anchor="middle">B</text>'
                f'<text x="60" y="-70" font-family="{FONT}" font-size="14" fill="{NAVY}" text-anchor="middle">J</text>'
                f'<rect x="-44" y="-96" width="88" height="190" fill="#2f3a7a" opacity="0.6"/>'
                + "".join(f'<circle cx="{x}" cy="{y}" r="5" fill="{RED}" opacity="0.85"/>'
                          for x, y in [(-28, -70), (0, -84), (28, -70), (-28, -30), (28, -30), (-28, 10), (28, 10)])
                + f'<circle cx="0" cy="-40" r="13" fill="{IVORY}" stroke="{GOLD}" stroke-width="1.5"/>'
                f'<path d="M-14,-52 A13,13 0 0 0 -14,-28 A9,9 0 0 1 -14,-52 Z" fill="{IVORY}" transform="translate(-10,0)"/>'
                f'<path d="M14,-52 A13,13 0 0 1 14,-28 A9,9 0 0 0 14,-52 Z" fill="{IVORY}" transform="translate(10,0)"/>'
                f'<rect x="-6" y="-6" width="12" height="34" fill="{IVORY}" stroke="{GOLD}" stroke-width="1"/>'
                f'<path d="M-6,11 H6 M0,5 V17" stroke="{NAVY}" stroke-width="1.6"/>'
                f'<path d="M-32,54 A32,32 0 0 0 32,54 A40,40 0 0 1 -32,54 Z" fill="{GOLD}" stroke="{DGOLD}" stroke-width="1"/>')
    if n == 3:  # The Empress: Venus shield, crown of twelve stars, ripe wheat
        stars = "".join(star(62 * math.cos(math.radians(a)), -30 + 62 * math.sin(math.radians(a)), 6, 5.5, 2.4)
                        for a in [200 + i * 140 / 11 for i in range(12)])
        wheat = ('<path d="M0,40 V-20" stroke="#d9b65a" stroke-width="2"/>'
                 + "".join(g('<ellipse cx="0" cy="0" rx="3" ry="6.5" fill="#e6c66a" stroke="#8a6a22" stroke-width="0.7"/>', sx * 4, y, 1, sx * 25)
                           for y in range(-18, 14, 8) for sx in (-1, 1)))
        return (stars
                + f'<path d="M-40,-36 H40 V6 C40,40 0,60 0,60 C0,60 -40,40 -40,6 Z" fill="#2d3a84" stroke="{GOLD}" stroke-width="2"/>'
                f'<circle cx="0" cy="-4" r="17" fill="none" stroke="{GOLD}" stroke-width="5"/>'
                f'<path d="M0,13 V46 M-12,30 H12" stroke="{GOLD}" stroke-width="5" stroke-linecap="round"/>'
                + g(wheat, -62, 78) + g(wheat, 62, 78) + g(wheat, -44, 88, 0.8) + g(wheat, 44, 88, 0.8))
    if n == 4:  # The Emperor: stone throne with ram's horns, the ankh sceptre
        horn = (f'<path d="M0,0 C-14,-2 -20,10 -14,18 C-8,26 4,20 2,12 C0,6 -8,8 -7,13" fill="none" '
                f'stroke="{GOLD}" stroke-width="4.5" stroke-linecap="round"/>')
        return (f'<path d="M-52,-70 H52 V110 H-52 Z" fill="#7b7893" stroke="{NAVY}" stroke-width="1.5"/>'
                f'<path d="M-70,20 H70 V110 H-70 Z" fill="#6a6782" stroke="{NAVY}" stroke-width="1.5"/>'
                f'<path d="M-52,-70 L-40,-92 H40 L52,-70" fill="#8c89a4" stroke="{NAVY}" stroke-width="1.5"/>'
                + g(horn, -40, -64) + g(horn, 40, -64, 1) .replace('translate(40,-64)', 'translate(40,-64) scale(-1,1)')
                + f'<path d="M-36,-40 H36 M-36,0 H36 M-52,60 H52" stroke="#5a5772" stroke-width="1.2"/>'
                f'<ellipse cx="0" cy="-22" rx="13" ry="18" fill="none" stroke="{GOLD}" stroke-width="6"/>'
                f'<path d="M0,-4 V82 M-24,8 H24" stroke="{GOLD}" stroke-width="6" stroke-linecap="round"/>'
                f'<circle cx="0" cy="-22" r="3" fill="{RED}"/>')
    if n == 5:  # The Hierophant: triple crown over the crossed keys
        tiara = (f'<path d="M-26,14 H26 L22,-2 H-22 Z" fill="{GOLD}" stroke="{NAVY}" stroke-width="1.3"/>'
                 f'<path d="M-22,-2 H22 L18,-18 H-18 Z" fill="{GOLD}" stroke="{NAVY}" stroke-width="1.3"/>'
                 f'<path d="M-18,-18 H18 C16,-34 8,-42 0,-44 C-8,-42 -16,-34 -18,-18 Z" fill="{GOLD}" stroke="{NAVY}" stroke-width="1.3"/>'
                 f'<path d="M0,-44 V-56 M-5,-51 H5" stroke="{GOLD}" stroke-width="3" stroke-linecap="round"/>'
                 + "".join(f'<circle cx="{x}" cy="{y}" r="2.2" fill="{RED}"/>' for x, y in
                           [(-14, 6), (0, 6), (14, 6), (-10, -10), (10, -10), (0, -28)]))
        return (g(tiara, 0, -58, 1.3)
                + g(key(GOLD), 0, 52, 1.2, -35) + g(key("#cfd4e0"), 0, 52, 1.2, 35).replace('scale(1.2)', 'scale(-1.2,1.2)'))
    if n == 6:  # The Lovers: the angel's wings and sun above two hearts
        wing = "".join(f'<path d="M0,0 C{-20 - k * 14},{-24 + k * 8} {-50 - k * 10},{-18 + k * 14} {-62 - k * 4},{6 + k * 10} '
                       f'C{-40 - k * 8},{-2 + k * 10} {-20},{4 + k * 4} 0,{8 + k * 2} Z" fill="{IVORY if k % 2 == 0 else GOLD}" '
                       f'stroke="{NAVY}" stroke-width="1"/>' for k in range(3))
        return (f'<circle cx="0" cy="-78" r="24" fill="{GOLD}"/>' + rays(0, -78, 30, 44, 16)
                + g(wing, -2, -42) + g(wing, 2, -42).replace('translate(2,-42)', 'translate(2,-42) scale(-1,1)')
                + f'<circle cx="0" cy="-42" r="7" fill="{RED}" stroke="{NAVY}"/>'
                + g(heart(RED), -20, 54, 2.4) + g(heart(IVORY), 20, 54, 2.4))
    if n == 7:  # The Chariot: starry canopy, the car and its two wheels, the black and the white sphinx
        stars = "".join(star(x, -88, 6, 4, 1.6, IVORY, IVORY, 0.3) for x in range(-50, 60, 20))
        wheel = (f'<circle cx="0" cy="0" r="22" fill="none" stroke="{GOLD}" stroke-width="4"/>'
                 + rays(0, 0, 3, 20, 8, GOLD, 2) + f'<circle cx="0" cy="0" r="4" fill="{GOLD}"/>')
        car = (f'<path d="M-64,-98 H64 V-80 H-64 Z" fill="#2b3a8a" stroke="{GOLD}" stroke-width="1.5"/>' + stars
               + f'<path d="M-54,-80 V-10 M54,-80 V-10" stroke="{GOLD}" stroke-width="4"/>'
               f'<path d="M-60,-10 H60 L52,56 H-52 Z" fill="{IVORY}" stroke="{GOLD}" stroke-width="2"/>'
               f'<circle cx="0" cy="18" r="10" fill="{GOLD}"/>'
               f'<path d="M-34,14 C-24,4 -14,12 -10,18 M34,14 C24,4 14,12 10,18" fill="none" stroke="{GOLD}" stroke-width="4" stroke-linecap="round"/>'
               + g(wheel, -56, 64) + g(wheel, 56, 64))
        return (g(car, 0, -18)
                + g(sphinx("#15172a", GOLD, "#3a3654", GOLD), -44, 104, 1.1)
                + g(mirror(sphinx(IVORY, "#3f6fc0", "#f7efdc", NAVY)), 44, 104, 1.1))
    if n == 8:  # Strength: the lion's head under the lemniscate
        flowers = "".join(g(rose(RED), x, y, 0.5) for x, y in [(-70, 96), (-40, 108), (0, 112), (40, 108), (70, 96)])
        return g(lemniscate(26, 4.5), 0, -96) + g(lion_head(), 0, 18) + flowers
    if n == 9:  # The Hermit: the lantern of the six-pointed star, the staff, the peak
        return (f'<path d="M-87,126 L-20,60 L0,74 L30,40 L87,110 V126 Z" fill="#cfd4e6" stroke="{IVORY}" stroke-width="1"/>'
                f'<path d="M-20,60 L-10,80 L0,74 L10,60 L30,40" fill="none" stroke="{NAVY}" stroke-width="0.8" opacity="0.5"/>'
                f'<line x1="48" y1="-104" x2="54" y2="110" stroke="#c9934f" stroke-width="5" stroke-linecap="round"/>'
                f'<circle cx="-12" cy="-18" r="56" fill="{GOLD}" opacity="0.14"/>'
                f'<circle cx="-12" cy="-18" r="38" fill="{GOLD}" opacity="0.18"/>'
                f'<path d="M-12,-84 V-60" stroke="{GOLD}" stroke-width="2"/>'
                f'<path d="M-30,-48 L-12,-62 L6,-48 Z" fill="{GOLD}" stroke="{NAVY}" stroke-width="1.2"/>'
                f'<rect x="-30" y="-48" width="36" height="54" rx="3" fill="#fff6d8" stroke="{GOLD}" stroke-width="3"/>'
                f'<path d="M-30,-30 H6 M-30,-12 H6" stroke="{GOLD}" stroke-width="1" opacity="0.6"/>'
                f'<polygon points="-12,-36 -1,-16 -23,-16" fill="none" stroke="{DGOLD}" stroke-width="2"/>'
                f'<polygon points="-12,-9 -1,-29 -23,-29" fill="none" stroke="{DGOLD}" stroke-width="2"/>'
                f'<path d="M-34,6 H10 L6,14 H-30 Z" fill="{GOLD}" stroke="{NAVY}" stroke-width="1.2"/>')
    if n == 10:  # Wheel of Fortune: the eight-spoked wheel with its letters, clouds at the corners
        letters = "".join(f'<text x="{f(57 * math.cos(math.radians(a)))}" y="{f(57 * math.sin(math.radians(a)) + 5)}" '
                          f'font-family="{FONT}" font-size="14" font-weight="bold" fill="{NAVY}" text-anchor="middle">{t}</text>'
                          for a, t in [(-90, "T"), (0, "A"), (90, "R"), (180, "O")])
        wheel = (f'<circle cx="0" cy="0" r="68" fill="{GOLD}" stroke="{NAVY}" stroke-width="2"/>'
                 f'<circle cx="0" cy="0" r="46" fill="#2b3a8a" stroke="{NAVY}" stroke-width="2"/>'
                 + rays(0, 0, 10, 46, 8, IVORY, 3, 22.5) + letters
                 + f'<circle cx="0" cy="0" r="12" fill="{IVORY}" stroke="{NAVY}" stroke-width="2"/>'
                 f'<circle cx="0" cy="0" r="4" fill="{GOLD}"/>')
        return (wheel + cloud(-62, -104, 0.9) + cloud(62, -104, 0.9) + cloud(-62, 108, 0.9) + cloud(62, 108, 0.9))
    if n == 11:  # Justice: upright sword and the balanced scales
        pan = (f'<path d="M-16,0 H16 C14,12 -14,12 -16,0 Z" fill="{GOLD}" stroke="{NAVY}" stroke-width="1.2"/>'
               f'<path d="M-14,0 L0,-44 L14,0" fill="none" stroke="{GOLD}" stroke-width="1.2"/>')
        return (f'<path d="M-87,-126 V126 H-64 V-126 Z M87,-126 V126 H64 V-126 Z" fill="#3b2a6a" opacity="0.7"/>'
                f'<line x1="-58" y1="-24" x2="58" y2="-24" stroke="{GOLD}" stroke-width="4" stroke-linecap="round"/>'
                f'<circle cx="0" cy="-24" r="5" fill="{GOLD}"/>'
                + g(pan, -54, 20) + g(pan, 54, 20)
                + g(sword(), 0, -14, 4.4))
    if n == 12:  # The Hanged Man: the living tau tree, the figure hanging head down with a halo
        return (f'<path d="M-70,-98 H70" stroke="#6e8f46" stroke-width="10" stroke-linecap="round"/>'
                f'<path d="M-62,-98 V124 M62,-98 V124" stroke="#6e8f46" stroke-width="10"/>'
                + "".join(f'<ellipse cx="{x}" cy="{y}" rx="5" ry="2.4" fill="#9ccc6a"/>' for x, y in
                          [(-40, -106), (-8, -107), (26, -106), (-70, -50), (70, -20), (-70, 40)])
                + f'<path d="M0,-93 V-76" stroke="#c9934f" stroke-width="3"/>'
                f'<path d="M0,-76 V-12" stroke="#b8412f" stroke-width="9" stroke-linecap="round"/>'
                f'<path d="M0,-50 H-24 V-16" fill="none" stroke="#b8412f" stroke-width="8" stroke-linecap="round" stroke-linejoin="round"/>'
                f'<path d="M-16,-14 H16 L12,46 H-12 Z" fill="#3f6fc0" stroke="{NAVY}" stroke-width="1.3"/>'
                f'<circle cx="0" cy="66" r="26" fill="{GOLD}" opacity="0.35"/>'
                + rays(0, 66, 22, 32, 16, GOLD, 1.5)
                + f'<circle cx="0" cy="62" r="12" fill="#efd7b0" stroke="{NAVY}" stroke-width="1.3"/>'
                f'<path d="M-8,72 q8,6 16,0" fill="{GOLD}"/>')
    if n == 13:  # Death: the black banner of the white rose, the sun rising between two towers
        return (f'<line x1="-54" y1="-108" x2="-54" y2="30" stroke="{GOLD}" stroke-width="4" stroke-linecap="round"/>'
                f'<path d="M-54,-104 C-20,-96 10,-112 50,-100 V-26 C10,-38 -20,-22 -54,-30 Z" fill="#07080f" stroke="{IVORY}" stroke-width="1.5"/>'
                + g(rose(), -2, -66, 2.1)
                + f'<path d="M-87,100 H87" stroke="{GOLD}" stroke-width="1.2"/>'
                f'<path d="M-22,100 A22,22 0 0 1 22,100 Z" fill="{GOLD}"/>'
                + "".join(g(f'<line x1="0" y1="-27" x2="0" y2="-40" stroke="{GOLD}" stroke-width="2" stroke-linecap="round"/>', 0, 100, 1, a)
                          for a in range(-80, 81, 20))
                + tower_block(-70, 52, 20, 48) + tower_block(50, 52, 20, 48)
                + f'<path d="M-87,108 q22,-6 44,0 t44,0 t44,0 t44,0" fill="none" stroke="#7fa6d9" stroke-width="2"/>')
    if n == 14:  # Temperance: water poured between two cups, the square and triangle, the pool
        return (f'<rect x="-16" y="-108" width="32" height="32" fill="none" stroke="{IVORY}" stroke-width="2.5"/>'
                f'<polygon points="0,-102 12,-80 -12,-80" fill="{GOLD}" stroke="{NAVY}" stroke-width="1"/>'
                + g(cup(), -44, -28, 1.6, -35) + g(cup("#cfd4e0"), 44, 46, 1.6, 20)
                + f'<path d="M-30,-44 C10,-40 40,-10 40,28" fill="none" stroke="#9cc2f0" stroke-width="5" stroke-linecap="round"/>'
                f'<path d="M-30,-44 C10,-40 40,-10 40,28" fill="none" stroke="{IVORY}" stroke-width="1.5" stroke-linecap="round"/>'
                + waves(96, 80, "#7fa6d9", 3, 9)
                + g(rose(GOLD), -58, 80, 0.6) + g(rose(GOLD), -70, 66, 0.5))
    if n == 15:  # The Devil: the reversed pentagram, bat wings, the pedestal and its chains
        wing = (f'<path d="M0,0 C-20,-30 -60,-40 -84,-24 C-72,-16 -70,-6 -74,4 C-62,-4 -52,0 -50,10 '
                f'C-40,2 -30,4 -26,14 C-18,6 -8,6 0,10 Z" fill="#0b0c18" stroke="{GOLD}" stroke-width="1.3"/>')
        chain = "".join(f'<ellipse cx="0" cy="{y}" rx="3" ry="5" fill="none" stroke="#c4c9d6" stroke-width="1.8"/>'
                        for y in range(0, 56, 8))
        return (g(wing, -4, -10) + g(wing, 4, -10).replace('translate(4,-10)', 'translate(4,-10) scale(-1,1)')
                + f'<path d="M-20,-86 C-30,-104 -26,-116 -14,-120 C-20,-108 -16,-98 -10,-92 Z" fill="{IVORY}"/>'
                f'<path d="M20,-86 C30,-104 26,-116 14,-120 C20,-108 16,-98 10,-92 Z" fill="{IVORY}"/>'
                f'<circle cx="0" cy="-62" r="30" fill="none" stroke="{GOLD}" stroke-width="2"/>'
                f'<polygon points="{pentagram_points(0, -62, 27, 90)}" fill="none" stroke="{GOLD}" stroke-width="3" stroke-linejoin="round"/>'
                f'<rect x="-30" y="30" width="60" height="40" fill="#4a4658" stroke="{NAVY}" stroke-width="1.5"/>'
                f'<circle cx="0" cy="40" r="4" fill="none" stroke="#c4c9d6" stroke-width="2"/>'
                + g(chain, -16, 46, 1, 30) + g(chain, 16, 46, 1, -30)
                + f'<path d="M-87,110 H87" stroke="{GOLD}" stroke-width="1"/>')
    if n == 16:  # The Tower: struck by lightning on its rock, crown thrown off, fire from the windows
        flames = "".join(g('<path d="M0,0 C-6,-6 -2,-14 0,-20 C4,-12 8,-8 4,0 Z" fill="#f08a2c"/>', x, y)
                         for x, y in [(-20, -40), (20, -40), (0, 12), (-30, -70), (30, -70)])
        drops = "".join(g('<path d="M0,-5 C3,0 3,4 0,5 C-3,4 -3,0 0,-5 Z" fill="#f5c04a"/>', x, y)
                        for x, y in [(-70, -80), (-60, -20), (-72, 30), (66, -10), (74, 40), (60, 70)])
        crown = (f'<path d="M-16,6 L-18,-10 L-8,-2 L0,-14 L8,-2 L18,-10 L16,6 Z" fill="{GOLD}" stroke="{NAVY}" stroke-width="1.2"/>')
        return (f'<path d="M-87,126 L-60,90 L-30,84 L30,84 L62,94 L87,126 Z" fill="#4a4658" stroke="{NAVY}" stroke-width="1.2"/>'
                f'<path d="M-28,86 V-70 H28 V86 Z" fill="#b8b4c8" stroke="{NAVY}" stroke-width="1.5"/>'
                f'<path d="M-28,-30 H28 M-28,20 H28 M0,-70 V-30 M-14,-30 V20 M14,20 V86" stroke="#8e8aa3" stroke-width="1"/>'
                f'<rect x="-26" y="-46" width="12" height="16" rx="6" fill="{DARK}"/><rect x="14" y="-46" width="12" height="16" rx="6" fill="{DARK}"/>'
                f'<rect x="-6" y="4" width="12" height="16" rx="6" fill="{DARK}"/>'
                f'<path d="M-28,-70 h8 v-8 h8 v8 h8 v-8 h8 v8 h8 v-8 h8 v8" fill="#b8b4c8" stroke="{NAVY}" stroke-width="1.2"/>'
                + flames + g(crown, 40, -96, 1.4, 28)
                + f'<polygon points="86,-126 50,-86 62,-84 30,-56 44,-54 6,-20 60,-66 46,-68 80,-100 66,-102 87,-118" fill="#ffe27a" stroke="{DGOLD}" stroke-width="1"/>'
                + drops)
    if n == 17:  # The Star: the great star, seven small stars, water poured into the pool
        small = "".join(star(64 * math.cos(math.radians(a)), -40 + 54 * math.sin(math.radians(a)), 8, 9, 3.5, IVORY, GOLD, 0.6)
                        for a in [-180 + i * 180 / 6 for i in range(7)])
        return (f'<circle cx="0" cy="-44" r="40" fill="{GOLD}" opacity="0.15"/>'
                + star(0, -44, 8, 40, 14) + star(0, -44, 8, 22, 9, IVORY, GOLD, 0.6, -67.5) + small
                + f'<path d="M-87,70 C-40,60 40,64 87,56 V126 H-87 Z" fill="#2d5d8a" opacity="0.8"/>'
                + waves(84, 80, "#9cc2f0", 3, 11)
                + f'<path d="M-60,20 C-50,40 -40,60 -34,74" fill="none" stroke="#bfe0ff" stroke-width="3" stroke-linecap="round"/>'
                f'<path d="M60,20 C50,40 40,60 34,74" fill="none" stroke="#bfe0ff" stroke-width="3" stroke-linecap="round"/>'
                + g(cup(), -64, 10, 1.1, 60) + g(cup(), 64, 10, 1.1, -60))
    if n == 18:  # The Moon: the moon with its face in the sun's rays, two towers, the path and the pool
        drops = "".join(g('<path d="M0,-5 C3,0 3,4 0,5 C-3,4 -3,0 0,-5 Z" fill="#f5e2a0"/>', x, y)
                        for x, y in [(-36, -6), (-18, 4), (0, 8), (18, 4), (36, -6)])
        return (f'<circle cx="0" cy="-64" r="46" fill="#f0d98a" opacity="0.25"/>'
                + rays(0, -64, 40, 54, 16, "#f0d98a", 2.5) + rays(0, -64, 40, 48, 16, "#f0d98a", 1.5, 11.25)
                + f'<circle cx="0" cy="-64" r="36" fill="#f0d98a" stroke="{DGOLD}" stroke-width="1"/>'
                f'<path d="M6,-98 A36,36 0 0 0 6,-30 A28,28 0 0 1 6,-98 Z" fill="#c8ab52"/>'
                f'<path d="M-6,-74 q-6,-4 -12,0" stroke="{NAVY}" stroke-width="1.8" fill="none"/>'
                f'<path d="M-4,-52 q-7,4 -14,-1" stroke="{NAVY}" stroke-width="1.6" fill="none"/>'
                + drops + tower_block(-78, 6, 22, 60) + tower_block(56, 6, 22, 60)
                + f'<path d="M-87,66 H87 V126 H-87 Z" fill="#263a5e"/>'
                f'<path d="M-6,66 C-30,84 30,96 -10,126 H10 C46,96 -14,84 6,66 Z" fill="#c9b98e"/>'
                + f'<path d="M-87,100 C-60,96 -40,106 -22,102 V126 H-87 Z" fill="#2d5d8a"/>'
                + g('<path d="M-8,0 C-8,-8 8,-8 8,0 C8,6 4,10 0,12 C-4,10 -8,6 -8,0 Z M-8,-2 l-6,-8 M8,-2 l6,-8" fill="#c9543a" stroke="#7d2c1a" stroke-width="1.5"/>', -52, 110, 1))
    if n == 19:  # The Sun: the sun with its face and rays, sunflowers over the wall
        face = (f'<circle cx="0" cy="0" r="40" fill="{GOLD}" stroke="{DGOLD}" stroke-width="1.5"/>'
                f'<path d="M-20,-8 q6,5 12,0 M8,-8 q6,5 12,0" stroke="{NAVY}" stroke-width="2.2" fill="none" stroke-linecap="round"/>'
                f'<path d="M-14,14 q14,12 28,0" stroke="{NAVY}" stroke-width="2.2" fill="none" stroke-linecap="round"/>'
                f'<circle cx="-22" cy="6" r="5" fill="#f08a2c" opacity="0.5"/><circle cx="22" cy="6" r="5" fill="#f08a2c" opacity="0.5"/>')
        wavy = "".join(g(f'<path d="M0,-46 q5,-7 0,-14 q-5,-7 0,-14 q5,-6 0,-12" fill="none" stroke="{GOLD}" stroke-width="3" stroke-linecap="round"/>', 0, 0, 1, a)
                       for a in range(0, 360, 45))
        straight = "".join(g(f'<polygon points="-5,-46 5,-46 0,-84" fill="{GOLD}"/>', 0, 0, 1, a) for a in range(22, 360, 45))
        return (g(straight + wavy + face, 0, -40)
                + f'<path d="M-87,78 H87 V126 H-87 Z" fill="#a8804f" stroke="{NAVY}" stroke-width="1"/>'
                + "".join(f'<path d="M{x},78 V126 M-87,{y} H87" stroke="#7d5c36" stroke-width="1"/>' for x, y in [(-60, 94), (-20, 110), (20, 94), (60, 110)])
                + "".join(f'<path d="M{x},78 V64" stroke="#4c8047" stroke-width="3"/>' + g(sunflower(), x, 56, 1.05) for x in (-56, 0, 56)))
    if n == 20:  # Judgement: the trumpet with its banner of the cross, clouds, the rising dead
        banner = (f'<rect x="-16" y="0" width="32" height="30" fill="{IVORY}" stroke="{NAVY}" stroke-width="1.2"/>'
                  f'<path d="M0,4 V26 M-12,15 H12" stroke="{RED}" stroke-width="5"/>')
        figure = (f'<circle cx="0" cy="-18" r="5" fill="#d9d4e6"/><path d="M-5,-12 H5 V8 H-5 Z" fill="#d9d4e6"/>'
                  f'<path d="M-5,-10 L-12,-24 M5,-10 L12,-24" stroke="#d9d4e6" stroke-width="3" stroke-linecap="round"/>')
        return (cloud(-40, -100, 1.5) + cloud(30, -108, 1.3) + cloud(60, -92, 1.1)
                + rays(-10, -90, 30, 60, 12, GOLD, 1.2, 15)
                + g(f'<path d="M0,-3 L70,-3 L96,-18 V18 L70,3 L0,3 Z" fill="{GOLD}" stroke="{DGOLD}" stroke-width="1"/>'
                    f'<rect x="-6" y="-4" width="8" height="8" fill="{GOLD}"/>', -56, -60, 1, 30)
                + g(banner, 10, -40, 1, 30)
                + f'<path d="M-87,96 C-40,86 40,92 87,84 V126 H-87 Z" fill="#2d5d8a" opacity="0.85"/>'
                + waves(106, 80, "#9cc2f0", 2, 10)
                + "".join(f'<rect x="{x - 16}" y="{y}" width="32" height="14" fill="#4a4658" stroke="{NAVY}"/>' + g(figure, x, y, 1.3)
                          for x, y in [(-50, 74), (0, 64), (50, 74)]))
    if n == 21:  # The World: the laurel wreath bound with red ribbons; the angel, eagle, bull and lion
        leaves = []
        for i in range(44):
            a = math.radians(i * 360 / 44)
            x, y = 50 * math.cos(a), 80 * math.sin(a)
            ang = math.degrees(math.atan2(80 * math.cos(a), -50 * math.sin(a)))
            side = 6 if i % 2 == 0 else -6
            leaves.append(g(f'<ellipse cx="0" cy="{side}" rx="8" ry="3.4" fill="#6fae4d" stroke="#2c4a1c" stroke-width="0.6"/>', x, y, 1, ang))
        ribbon = (f'<path d="M0,0 C-12,-10 -12,10 0,0 C12,-10 12,10 0,0 Z" fill="none" stroke="{RED}" stroke-width="3"/>')
        creatures = [(angel_head(), -66, -104, 1), (mirror(eagle_head()), 66, -104, 1.1),
                     (bull_head(), -66, 104, 0.62), (lion_head(), 66, 104, 0.19)]
        corners = "".join(f'<circle cx="{x}" cy="{y}" r="18" fill="{DARK}" opacity="0.55"/>' + cloud(x, y + 12, 0.7)
                          + g(art, x, y, s) + f'<circle cx="{x}" cy="{y}" r="18" fill="none" stroke="{GOLD}" stroke-width="1.6"/>'
                          for art, x, y, s in creatures)
        return (f'<ellipse cx="0" cy="0" rx="50" ry="80" fill="none" stroke="#3f7a35" stroke-width="3"/>'
                + "".join(leaves) + g(ribbon, 0, -80, 1.3) + g(ribbon, 0, 80, 1.3)
                + f'<ellipse cx="0" cy="0" rx="38" ry="66" fill="#2b3a8a" opacity="0.6"/>'
                + star(0, 0, 8, 22, 8) + corners)
    raise ValueError(n)


def night_sky():
    # A quiet field of stars behind every Major Arcana emblem; fixed positions.
    pts = [(-70, -112), (-40, -118), (12, -116), (60, -112), (-80, -60), (78, -70), (-76, 2),
           (80, 10), (-66, 60), (72, 52), (-30, -100), (34, -96)]
    return "".join(f'<circle cx="{x}" cy="{y}" r="1.1" fill="{IVORY}" opacity="0.55"/>' for x, y in pts)


# ---------------------------------------------------------------- the card

def card(group, top, name, panel):
    c1, c2 = PANELS[group]
    size = 17 if len(name) <= 15 else 15
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{W}" height="{H}" viewBox="0 0 {W} {H}">\n'
        f'<defs><linearGradient id="panel" x1="0" y1="0" x2="0" y2="1">'
        f'<stop offset="0" stop-color="{c1}"/><stop offset="1" stop-color="{c2}"/></linearGradient>'
        f'<clipPath id="clip"><rect x="{PX}" y="{PY}" width="{PW}" height="{PH}" rx="4"/></clipPath></defs>\n'
        f'<rect x="1.5" y="1.5" width="{W - 3}" height="{H - 3}" rx="11" fill="#f3ead3" stroke="{NAVY}" stroke-width="3"/>\n'
        f'<rect x="9" y="9" width="{W - 18}" height="{H - 18}" rx="7" fill="none" stroke="{DGOLD}" stroke-width="1.4"/>\n'
        f'<text x="{CX}" y="37" font-family="{FONT}" font-size="19" font-weight="bold" fill="{NAVY}" '
        f'text-anchor="middle" letter-spacing="1">{top}</text>\n'
        f'<rect x="{PX}" y="{PY}" width="{PW}" height="{PH}" rx="4" fill="url(#panel)"/>\n'
        f'<g clip-path="url(#clip)"><g transform="translate({CX},{CY})">{panel}</g></g>\n'
        f'<rect x="{PX}" y="{PY}" width="{PW}" height="{PH}" rx="4" fill="none" stroke="{DGOLD}" stroke-width="1.6"/>\n'
        f'<text x="{CX}" y="332" font-family="{FONT}" font-size="{size}" fill="{NAVY}" '
        f'text-anchor="middle">{name}</text>\n'
        f'<path d="M70,342 H140" stroke="{DGOLD}" stroke-width="0.8"/>\n'
        f'</svg>\n')


def main():
    out = os.path.join(os.path.dirname(os.path.abspath(__file__)), "pictures")
    os.makedirs(out, exist_ok=True)
    cards = []
    for n, name in enumerate(MAJOR):
        cards.append((f"{n + 1:02d}", card(0, ROMAN[n], name, night_sky() + major_emblem(n))))
    card_id = 23
    for group, suit in enumerate(SUITS, start=1):
        for r, rank in enumerate(RANKS):
            name = f"{rank} of {suit}"
            if r < 10:
                top = "ACE" if r == 0 else ROMAN[r + 1]
                panel = pip_panel(group, r + 1)
            else:
                top = rank.upper()
                panel = court_panel(group, rank)
            cards.append((f"{card_id:02d}", card(group, top, name, panel)))
            card_id += 1
    for stem, svg in cards:
        with open(os.path.join(out, f"card{stem}.svg"), "w", newline="\n") as fh:
            fh.write(svg)


if __name__ == "__main__":
    main()
