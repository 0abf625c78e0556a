#!/usr/bin/env python3
"""Draws the 25 stone pictures of the Runes window (113 by 151 pixels each).

Entry n of the picture list is written to stone-<nn>-<name>.svg. Entries 1 to
24 are the Elder Futhark runes in stone order, carved into a river stone;
entry 25 is the blank stone. The output uses only paths, gradients and
opacity, so that every SVG renderer of the program draws it alike.

Run from anywhere: python3 make_stones.py
"""
import math
import os

WIDTH, HEIGHT = 113, 151
CX, CY = 56.5, 73.0  # centre of the stone
RX, RY = 48.0, 66.0  # half width and half height of the stone

# Rune strokes in a unit box (x to the right, y downward), one polyline a
# list of points. The box is placed in the middle of the stone.
RUNES = [
    ("Fehu", [[(0.25, 0.0), (0.25, 1.0)],
              [(0.25, 0.28), (0.8, 0.02)],
              [(0.25, 0.56), (0.8, 0.3)]]),
    ("Uruz", [[(0.2, 1.0), (0.2, 0.0), (0.8, 0.32), (0.8, 1.0)]]),
    ("Thurisaz", [[(0.28, 0.0), (0.28, 1.0)],
                  [(0.28, 0.27), (0.78, 0.5), (0.28, 0.73)]]),
    ("Ansuz", [[(0.25, 0.0), (0.25, 1.0)],
               [(0.25, 0.0), (0.8, 0.26)],
               [(0.25, 0.3), (0.8, 0.56)]]),
    ("Raidho", [[(0.22, 1.0), (0.22, 0.0), (0.78, 0.24), (0.22, 0.48), (0.8, 1.0)]]),
    ("Kenaz", [[(0.72, 0.22), (0.28, 0.5), (0.72, 0.78)]]),
    ("Gebo", [[(0.08, 0.06), (0.92, 0.94)], [(0.92, 0.06), (0.08, 0.94)]]),
    ("Wunjo", [[(0.22, 1.0), (0.22, 0.0), (0.78, 0.22), (0.22, 0.44)]]),
    ("Hagalaz", [[(0.18, 0.0), (0.18, 1.0)], [(0.82, 0.0), (0.82, 1.0)],
                 [(0.18, 0.36), (0.82, 0.6)]]),
    ("Nauthiz", [[(0.5, 0.0), (0.5, 1.0)], [(0.18, 0.36), (0.82, 0.6)]]),
    ("Isa", [[(0.5, 0.0), (0.5, 1.0)]]),
    ("Jera", [[(0.46, 0.08), (0.12, 0.33), (0.46, 0.58)],
              [(0.54, 0.42), (0.88, 0.67), (0.54, 0.92)]]),
    ("Eihwaz", [[(0.5, 0.0), (0.5, 1.0)],
                [(0.5, 0.0), (0.82, 0.2)],
                [(0.5, 1.0), (0.18, 0.8)]]),
    ("Perthro", [[(0.82, 0.02), (0.5, 0.2), (0.2, 0.0), (0.2, 1.0), (0.5, 0.8), (0.82, 0.98)]]),
    ("Algiz", [[(0.5, 1.0), (0.5, 0.0)], [(0.1, 0.04), (0.5, 0.42), (0.9, 0.04)]]),
    ("Sowilo", [[(0.78, 0.0), (0.22, 0.34), (0.78, 0.66), (0.22, 1.0)]]),
    ("Tiwaz", [[(0.5, 1.0), (0.5, 0.0)], [(0.12, 0.3), (0.5, 0.0), (0.88, 0.3)]]),
    ("Berkano", [[(0.22, 1.0), (0.22, 0.0), (0.76, 0.25), (0.22, 0.5), (0.76, 0.75),
                  (0.22, 1.0)]]),
    ("Ehwaz", [[(0.14, 1.0), (0.14, 0.0), (0.5, 0.3), (0.86, 0.0), (0.86, 1.0)]]),
    ("Mannaz", [[(0.14, 1.0), (0.14, 0.0), (0.86, 0.4)],
                [(0.86, 1.0), (0.86, 0.0), (0.14, 0.4)]]),
    ("Laguz", [[(0.3, 1.0), (0.3, 0.0), (0.76, 0.3)]]),
    ("Ingwaz", [[(0.5, 0.2), (0.86, 0.5), (0.5, 0.8), (0.14, 0.5), (0.5, 0.2)]]),
    ("Dagaz", [[(0.06, 0.12), (0.06, 0.88), (0.94, 0.12), (0.94, 0.88), (0.06, 0.12)]]),
    ("Othala", [[(0.1, 1.0), (0.88, 0.34), (0.5, 0.0), (0.12, 0.34), (0.9, 1.0)]]),
]

BOX_W, BOX_H = 50.0, 86.0  # size of the rune's unit box on the stone
BOX_X, BOX_Y = CX - BOX_W / 2, CY - BOX_H / 2


def rnd(seed):
    """A small deterministic generator, so that each stone has its own shape."""
    state = seed * 2654435761 % 4294967296 or 1

    def next_value():
        nonlocal state
        state = (state * 1103515245 + 12345) % 2147483648
        return state / 2147483648.0

    return next_value


def stone_outline(seed):
    """A smooth closed path: a rounded oval with a gentle irregularity."""
    r = rnd(seed)
    phases = [r() * 2 * math.pi for _ in range(3)]
    amps = [0.018 + 0.012 * r(), 0.012 + 0.01 * r(), 0.008 * r()]
    points = []
    count = 24
    for i in range(count):
        t = 2 * math.pi * i / count
        wobble = 1.0 + sum(a * math.sin((k + 2) * t + p) for k, (a, p) in enumerate(zip(amps, phases)))
        c, s = math.cos(t), math.sin(t)
        # A superellipse with exponent 2.2 gives fuller shoulders than an
        # ellipse; the stone is a little broader below than above.
        e = 2 / 2.2
        x = CX + RX * wobble * (1.0 + 0.04 * s) * math.copysign(abs(c) ** e, c)
        y = CY + RY * wobble * math.copysign(abs(s) ** e, s)
        points.append((x, y))
    # Catmull-Rom through the points, written as cubic Bezier segments.
    d = [f"M{points[0][0]:.2f} {points[0][1]:.2f}"]
    for i in range(count):
        p0, p1, p2, p3 = (points[(i + j - 1) % count] for j in range(4))
        c1 = (p1[0] + (p2[0] - p0[0]) / 6, p1[1] + (p2[1] - p0[1]) / 6)
        c2 = (p2[0] - (p3[0] - p1[0]) / 6, p2[1] - (p3[1] - p1[1]) / 6)
        d.append(f"C{c1[0]:.2f} {c1[1]:.2f} {c2[0]:.2f} {c2[1]:.2f} {p2[0]:.2f} {p2[1]:.2f}")
    return "".join(d) + "Z"


def specks(seed):
    """A few faint grains in the stone."""
    r = rnd(seed + 101)
    out = []
    for _ in range(22):
        a, d = r() * 2 * math.pi, math.sqrt(r()) * 0.82
        x, y = CX + RX * d * math.cos(a), CY + RY * d * math.sin(a)
        radius = 0.5 + r() * 0.8
        shade = "#5d5245" if r() < 0.6 else "#f4eee4"
        out.append(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{radius:.2f}" fill="{shade}" '
                   f'fill-opacity="{0.18 + r() * 0.2:.2f}"/>')
    return "\n    ".join(out)


def rune_path(strokes, dx=0.0, dy=0.0):
    parts = []
    for line in strokes:
        pts = [(BOX_X + x * BOX_W + dx, BOX_Y + y * BOX_H + dy) for x, y in line]
        closed = len(pts) > 2 and pts[0] == pts[-1]
        if closed:
            pts = pts[:-1]
        seg = f"M{pts[0][0]:.2f} {pts[0][1]:.2f}" + "".join(
            f"L{x:.2f} {y:.2f}" for x, y in pts[1:])
        parts.append(seg + ("Z" if closed else ""))
    return "".join(parts)


def carving(strokes):
    """The rune cut into the stone: a lit lower lip, the groove, its shadowed wall.

    Every layer is opaque, its colour mixed beforehand with what lies beneath
    it (the stone's face for the lip, the groove for the others): so drawn, a
    stone takes about half the time to draw."""
    style = 'fill="none" stroke-linecap="round" stroke-linejoin="round"'
    return f'''<g class="rune">
    <path d="{rune_path(strokes, 0.9, 1.1)}" {style} stroke="#d8cebd" stroke-width="7.6"/>
    <path d="{rune_path(strokes)}" {style} stroke="#5a2618" stroke-width="6.6"/>
    <path d="{rune_path(strokes, -0.6, -0.7)}" {style} stroke="#38170e" stroke-width="3.2"/>
    <path d="{rune_path(strokes, 0.7, 0.9)}" {style} stroke="#743625" stroke-width="1.6"/>
  </g>'''


def stone_svg(entry, name, strokes):
    outline = stone_outline(entry)
    rune = carving(strokes) if strokes else ""
    return f'''<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" viewBox="0 0 {WIDTH} {HEIGHT}">
  <title>{entry:02d} {name}</title>
  <defs>
    <radialGradient id="body" cx="0.42" cy="0.36" r="0.72" fx="0.34" fy="0.26">
      <stop offset="0" stop-color="#d8cdbb"/>
      <stop offset="0.55" stop-color="#ae9f8a"/>
      <stop offset="1" stop-color="#7c6d5c"/>
    </radialGradient>
    <linearGradient id="underside" x1="0" y1="0" x2="0" y2="1">
      <stop offset="0.45" stop-color="#3e352b" stop-opacity="0"/>
      <stop offset="1" stop-color="#3e352b" stop-opacity="0.38"/>
    </linearGradient>
    <radialGradient id="sheen" cx="0.5" cy="0.5" r="0.5">
      <stop offset="0" stop-color="#ffffff" stop-opacity="0.42"/>
      <stop offset="1" stop-color="#ffffff" stop-opacity="0"/>
    </radialGradient>
    <radialGradient id="shadow" cx="0.5" cy="0.5" r="0.5">
      <stop offset="0" stop-color="#2b241d" stop-opacity="0.35"/>
      <stop offset="1" stop-color="#2b241d" stop-opacity="0"/>
    </radialGradient>
  </defs>
  <ellipse cx="{CX + 2:.1f}" cy="{CY + RY + 3:.1f}" rx="{RX * 0.9:.1f}" ry="7" fill="url(#shadow)"/>
  <path d="{outline}" fill="url(#body)"/>
  <path d="{outline}" fill="url(#underside)"/>
  <g>
    {specks(entry)}
  </g>
  <ellipse cx="{CX - 14:.1f}" cy="{CY - 34:.1f}" rx="22" ry="16" transform="rotate(-28 {CX - 14:.1f} {CY - 34:.1f})" fill="url(#sheen)"/>
  <path d="{outline}" fill="none" stroke="#5b5145" stroke-width="1.2"/>
  {rune}
</svg>
'''


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    entries = RUNES + [("Blank", [])]
    for entry, (name, strokes) in enumerate(entries, start=1):
        path = os.path.join(here, f"stone-{entry:02d}-{name.lower()}.svg")
        with open(path, "w", newline="\n") as out:
            out.write(stone_svg(entry, name, strokes))


if __name__ == "__main__":
    main()
