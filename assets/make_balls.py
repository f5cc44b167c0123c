#!/usr/bin/env python3
# SPDX-License-Identifier: CC0-1.0
"""Writes ball.svg: six lottery balls (p1..p6), each in four steps (a..d), and
boxes.svg: the balls that message boxes show as icons.

Every ball is a real sphere seen from the front: a near-white cap on either
pole, a printed ring pattern around each cap and a thin stripe on the equator.
The steps differ only in how far the sphere has been turned, so the drawing
stays right from step to step.  Run it in this folder:  ./make_balls.py
"""
import math
from pathlib import Path

RADIUS = 42.0                    # of a ball inside its 96 x 96 box
CENTRE = (48.0, 45.0)            # of a ball inside its box
CAP = math.degrees(math.asin(0.62))      # the cap is 62 % of the diameter
TURNS = {"a": 116.0, "b": 74.0, "c": 35.0, "d": 0.0}
ROLL_AXIS = (0.94, -0.34, 0.0)   # nearly level: the cap comes over the top

# name, light side, body, dark side, printed pattern
COLOURS = {
    1: ("amber", "#ffe09a", "#f2b032", "#b06a0e", "#fff3cf"),
    2: ("brick", "#e9825f", "#a8351d", "#64140c", "#ffd3b8"),
    3: ("petrol", "#56b3aa", "#0f6462", "#043a3f", "#c4efe4"),
    4: ("plum", "#e0aad9", "#b566ad", "#6a2d68", "#fbe2f5"),
    5: ("leaf", "#cbdd83", "#7ea23a", "#466218", "#f3f8c8"),
    6: ("blue", "#678ed2", "#1c3878", "#0a1a42", "#c3d9fb"),
}


# ---- vectors ------------------------------------------------------------
def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2],
            a[0] * b[1] - a[1] * b[0])


def unit(a):
    n = math.sqrt(sum(x * x for x in a)) or 1.0
    return tuple(x / n for x in a)


def turn(v, axis, degrees):
    """v turned about a unit axis (Rodrigues)."""
    t = math.radians(degrees)
    c, s = math.cos(t), math.sin(t)
    k = unit(axis)
    d = sum(x * y for x, y in zip(k, v)) * (1 - c)
    w = cross(k, v)
    return tuple(v[i] * c + w[i] * s + k[i] * d for i in range(3))


def frame(degrees, axis=ROLL_AXIS, spin=0.0):
    """Pole and two equator directions of the turned sphere (x right, y down,
    z towards the eye)."""
    base = [(0.0, 0.0, 1.0), turn((1.0, 0.0, 0.0), (0, 0, 1), spin),
            turn((0.0, 1.0, 0.0), (0, 0, 1), spin)]
    return [turn(b, axis, degrees) for b in base]


def num(x):
    return f"{x:.2f}".rstrip("0").rstrip(".").replace("-0.", "-.") or "0"


def pt(x, y):
    return f"{num(x)} {num(y)}"


# ---- shapes on the sphere -----------------------------------------------
def cap_path(pole, theta, radius=RADIUS, at=(0.0, 0.0)):
    """Outline of the seen part of a cap of half-angle theta, exact arcs."""
    th = math.radians(theta)
    dx, dy, dz = pole
    s = math.hypot(dx, dy)
    psi = math.degrees(math.atan2(s, dz))
    if psi - theta >= 89.5:
        return ""
    ex, ey = (dx / s, dy / s) if s > 1e-6 else (1.0, 0.0)
    if abs(dz) < 0.01:
        dz = 0.01
    cx, cy = (at[0] + radius * math.cos(th) * dx,
              at[1] + radius * math.cos(th) * dy)
    ry = radius * math.sin(th)
    rx = ry * abs(dz)
    rot = num(math.degrees(math.atan2(ey, ex)))

    def point(t):
        # u = towards the eye, v = in the picture plane
        ux, uy = -ex * dz, -ey * dz
        vx, vy = -ey, ex
        return (cx + ry * (math.cos(t) * ux + math.sin(t) * vx),
                cy + ry * (math.cos(t) * uy + math.sin(t) * vy))

    arc = f"A{num(rx)} {num(ry)} {rot} "
    if psi + theta <= 90.0:
        p, q = point(0), point(math.pi)
        return f"M{pt(*p)}{arc}1 1 {pt(*q)}{arc}1 1 {pt(*p)}Z"
    t0 = math.acos(max(-1, min(1, -math.cos(th) * dz / (math.sin(th) * s))))
    p, q, m = point(-t0), point(t0), point(-t0 + 0.01)
    sweep = 1 if ((p[0] - cx) * (m[1] - cy) - (p[1] - cy) * (m[0] - cx)) > 0 \
        else 0
    big = 1 if t0 > math.pi / 2 else 0
    r = num(radius)
    back = 1 if ((q[0] - at[0]) * (p[1] - at[1])
                 - (q[1] - at[1]) * (p[0] - at[0])) > 0 else 0
    return (f"M{pt(*p)}{arc}{big} {sweep} {pt(*q)}"
            f"A{r} {r} 0 0 {back} {pt(*p)}Z")


def patch_path(fr, corners, radius=RADIUS, at=(0.0, 0.0)):
    """A polygon given as (polar angle, azimuth) corners, cut at the limb."""
    pole, u, v = fr
    pts = []
    for th, az in corners:
        a, b = math.radians(th), math.radians(az)
        pts.append(tuple(math.cos(a) * pole[i] + math.sin(a)
                         * (math.cos(b) * u[i] + math.sin(b) * v[i])
                         for i in range(3)))
    out = []
    for i, q in enumerate(pts):
        p = pts[i - 1]
        if (p[2] >= 0) != (q[2] >= 0):
            t = p[2] / (p[2] - q[2])
            out.append(unit(tuple(p[j] + t * (q[j] - p[j])
                                  for j in range(3))))
        if q[2] >= 0:
            out.append(q)
    if len(out) < 3:
        return ""
    return "M" + "L".join(pt(at[0] + radius * x, at[1] + radius * y)
                          for x, y, _ in out) + "Z"


def ring(pole, inner, outer, **where):
    return cap_path(pole, outer, **where) + cap_path(pole, inner, **where)


def dot(theta, azimuth, size, corners=10):
    a = size / math.sin(math.radians(theta))
    return [(theta + 1.25 * size * math.cos(2 * math.pi * i / corners),
             azimuth + a * math.sin(2 * math.pi * i / corners))
            for i in range(corners)]


def pattern(position, fr, **where):
    """The printed ring: a cue that does not need colour."""
    pole = fr[0]
    if position == 1:                                   # one broad ring
        return ring(pole, 48, 57, **where)
    if position == 2:                                   # two thin rings
        return ring(pole, 45, 49, **where) + ring(pole, 56, 61, **where)
    if position == 3:                                   # a string of dots
        shapes = [dot(52, i * 36, 6.2) for i in range(10)]
    elif position == 4:                                 # rays
        shapes = [[(45, i * 20 - 2.6), (62, i * 20 - 2.6),
                   (62, i * 20 + 2.6), (45, i * 20 + 2.6)]
                  for i in range(18)]
    elif position == 5:                                 # zigzag
        n = 12
        zig = [(63 if i % 2 else 50, i * 180 / n) for i in range(2 * n)]
        return "".join(
            patch_path(fr, [zig[i], zig[(i + 1) % (2 * n)],
                            (zig[(i + 1) % (2 * n)][0] - 7,
                             zig[(i + 1) % (2 * n)][1]),
                            (zig[i][0] - 7, zig[i][1])], **where)
            for i in range(2 * n))
    else:                                               # lozenges
        shapes = [[(53, i * 45 - 10), (43.5, i * 45), (53, i * 45 + 10),
                   (66, i * 45)] for i in range(8)]
    return "".join(patch_path(fr, s, **where) for s in shapes)


def equator(pole, radius=RADIUS - 0.6):
    """The seen half of the circle half-way between the poles."""
    dx, dy, dz = pole
    s = math.hypot(dx, dy)
    ex, ey = dx / s, dy / s
    rot = num(math.degrees(math.atan2(ey, ex)))
    sweep = 0 if dz > 0 else 1
    return (f"M{pt(-ey * radius, ex * radius)}"
            f"A{num(radius * abs(dz))} {num(radius)} {rot} 0 {1 - sweep} "
            f"{pt(ey * radius, -ex * radius)}")


# ---- one ball -----------------------------------------------------------
def far(fr):
    """The frame of the opposite pole."""
    return [tuple(-x for x in fr[0]), fr[1], tuple(-x for x in fr[2])]


def ball(position, degrees, smear=(), axis=ROLL_AXIS, spin=0.0, indent="  "):
    """SVG lines of a ball around the origin, radius 42."""
    name, _, _, dark, print_ = COLOURS[position]
    fr = frame(degrees, axis, spin)
    r = num(RADIUS)
    out = [f'<circle r="{r}" fill="url(#{name})"/>']
    if degrees:
        out.append(f'<path fill="none" stroke="{print_}" stroke-width="2.6" '
                   f'stroke-opacity="0.5" d="{equator(fr[0])}"/>')
    shapes = pattern(position, fr) + pattern(position, far(fr))
    out.append(f'<path fill="{print_}" fill-opacity="0.9" '
               f'fill-rule="evenodd" d="{shapes}"/>')
    for back, opacity in smear:                 # motion: where the cap was
        old = frame(degrees + back, axis, spin)
        ghost = cap_path(old[0], CAP) + cap_path(far(old)[0], CAP)
        out.append(f'<path fill="#fffaec" fill-opacity="{opacity}" '
                   f'd="{ghost}"/>')
    for side in (fr, far(fr)):
        rim = ring(side[0], CAP, CAP + 2.4) if cap_path(side[0], CAP) else ""
        if rim:
            out.append(f'<path fill="{dark}" fill-opacity="0.42" '
                       f'fill-rule="evenodd" d="{rim}"/>')
            out.append(f'<path fill="url(#disc)" '
                       f'd="{cap_path(side[0], CAP)}"/>')
    out.append(f'<circle r="{r}" fill="url(#shade)"/>')
    out.append(f'<circle r="{num(RADIUS - .5)}" fill="none" stroke="{dark}" '
               'stroke-opacity="0.5"/>')
    out.append(f'<path fill="url(#bounce)" d="{crescent()}"/>')
    out.append('<use xlink:href="#gloss"/>')
    return "\n".join(indent + line for line in out)


def crescent():
    """Reflected light at the lower right edge."""
    return "M41.6 4A41.8 41.8 0 0 1 4 41.6A56 56 0 0 0 41.6 4Z"


def definitions(used=COLOURS):
    lines = ["<defs>"]
    for p in used:
        name, light, body, dark, _ = COLOURS[p]
        lines.append(
            f'  <radialGradient id="{name}" gradientUnits="userSpaceOnUse" '
            'cx="-6" cy="-8" r="54" fx="-17" fy="-21">\n'
            f'    <stop offset="0" stop-color="{light}"/>'
            f'<stop offset="0.5" stop-color="{body}"/>'
            f'<stop offset="1" stop-color="{dark}"/>\n'
            '  </radialGradient>')
    lines.append('''\
  <radialGradient id="disc" gradientUnits="userSpaceOnUse" cx="-5" cy="-7" r="50" fx="-12" fy="-15">
    <stop offset="0" stop-color="#fffefa"/><stop offset="0.55" stop-color="#fdf8ea"/><stop offset="1" stop-color="#e3d8bf"/>
  </radialGradient>
  <radialGradient id="shade" gradientUnits="userSpaceOnUse" cx="-7" cy="-9" r="54" fx="-10" fy="-13">
    <stop offset="0.62" stop-color="#2a1020" stop-opacity="0"/><stop offset="0.84" stop-color="#2a1020" stop-opacity="0.16"/><stop offset="1" stop-color="#1c0a18" stop-opacity="0.42"/>
  </radialGradient>
  <radialGradient id="bounce" gradientUnits="userSpaceOnUse" cx="0" cy="0" r="42">
    <stop offset="0.8" stop-color="#fff1cf" stop-opacity="0"/><stop offset="0.93" stop-color="#fff1cf" stop-opacity="0.3"/><stop offset="1" stop-color="#fff1cf" stop-opacity="0"/>
  </radialGradient>
  <linearGradient id="sheen" gradientUnits="userSpaceOnUse" x1="0" y1="-40" x2="0" y2="-26">
    <stop offset="0" stop-color="#ffffff" stop-opacity="0.85"/><stop offset="1" stop-color="#ffffff" stop-opacity="0.05"/>
  </linearGradient>
  <radialGradient id="contact" gradientUnits="userSpaceOnUse" cx="0" cy="0" r="10" gradientTransform="scale(4 0.7)">
    <stop offset="0" stop-color="#2b1a12" stop-opacity="0.62"/><stop offset="0.45" stop-color="#2b1a12" stop-opacity="0.34"/><stop offset="1" stop-color="#2b1a12" stop-opacity="0"/>
  </radialGradient>
  <path id="gloss" transform="rotate(-38)" fill="url(#sheen)" d="M-19 -31.5C-14 -37.6 -6 -39.6 0 -39.6C6 -39.6 14 -37.6 19 -31.5C14 -33.6 7 -34.6 0 -34.6C-7 -34.6 -14 -33.6 -19 -31.5Z"/>
</defs>''')
    return "\n".join(lines)


def head(width, height, title, used):
    return ['<?xml version="1.0" encoding="UTF-8"?>',
            '<!-- Own drawing, CC0-1.0. Written by make_balls.py. -->',
            '<svg xmlns="http://www.w3.org/2000/svg" '
            'xmlns:xlink="http://www.w3.org/1999/xlink" version="1.2" '
            f'baseProfile="tiny" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">',
            f'<title>{title}</title>',
            definitions(used)]


def contact():
    """The shadow of a ball that lies still."""
    return ('  <ellipse cx="0" cy="0" rx="40" ry="7" '
            f'transform="translate({num(CENTRE[0] + 3)} 88.5)" '
            'fill="url(#contact)"/>')


def sheet():
    out = head(384, 576, "Six lottery balls in four steps", COLOURS)
    cx, cy = CENTRE
    for p, (name, *_) in COLOURS.items():
        out.append(f"<!-- position {p}: {name} -->")
        for i, (step, degrees) in enumerate(TURNS.items()):
            rolling = step != "d"
            out.append(f'<g id="p{p}-{step}" '
                       f'transform="translate({96 * i} {96 * (p - 1)})">')
            out.append('  <rect width="96" height="96" fill="#ffffff" '
                       'fill-opacity="0"/>')
            if not rolling:  # a rolling one has its shadow on the tray
                out.append(contact())
            out.append(f'  <g transform="translate({num(cx)} {num(cy)})">')
            smear = ((20, 0.16), (10, 0.3)) if rolling else ()
            out.append(ball(p, degrees, smear, indent="    "))
            out.append("  </g>\n</g>")
    out.append("</svg>\n")
    return "\n".join(out)


# ---- the icons of message boxes -----------------------------------------
# name, colour of the ball, what stands on its disc: strokes, filled shapes
MARKS = (
    ("question", 3, "M-9 -7.5C-9 -13.2 -5 -16.6 .2 -16.6C5.4 -16.6 9.2 -13.4 "
     "9.2 -8.8C9.2 -2.8 .4 -3 .4 4", '<circle cx="0.4" cy="13.4" r="4"/>'),
    ("warning", 1, "", '<path d="M-4.6 -17.4H4.6L3 6H-3Z"/>'
     '<circle cy="13.4" r="4"/>'),
    ("critical", 2, "M-10 -10L10 10M10 -10L-10 10", ""),
)


def boxes():
    out = head(96 * len(MARKS), 96, "Balls that ask, warn and report an error",
               [colour for _, colour, *_ in MARKS])
    cx, cy = CENTRE
    for i, (name, colour, strokes, shapes) in enumerate(MARKS):
        out.append(f'<g id="{name}" transform="translate({96 * i} 0)">')
        out.append('  <rect width="96" height="96" fill="#ffffff" '
                   'fill-opacity="0"/>')
        out.append(contact())
        out.append(f'  <g transform="translate({num(cx)} {num(cy)})">')
        out.append(ball(colour, 0.0, (), indent="    "))
        if strokes:
            out.append('    <path fill="none" stroke="#2a2622" '
                       'stroke-width="6.6" stroke-linecap="round" '
                       f'd="{strokes}"/>')
        if shapes:
            out.append(f'    <g fill="#2a2622">{shapes}</g>')
        out.append("  </g>\n</g>")
    out.append("</svg>\n")
    return "\n".join(out)


if __name__ == "__main__":
    for name, drawing in (("ball.svg", sheet()), ("boxes.svg", boxes())):
        target = Path(__file__).with_name(name)
        target.write_text(drawing, encoding="utf-8")
        print(target.name, target.stat().st_size, "bytes")
