#!/usr/bin/env python3
"""Writes the families of pictures of this folder from the glyphs below.

A glyph is drawn once, on a grid of 24 units. The classes tell what a line is: l, the main line; f, a
main area; a and b, line and area of the accent. A template gives the classes their colours and puts
the glyph on its ground, so that each state of a button is the same drawing in another light.
"""
import math
import os

HERE = os.path.dirname(os.path.abspath(__file__))

GREEN, BLUE, AMBER, VIOLET = "#6fe36f", "#6cc0ff", "#ffc35c", "#cfa5ff"


def polar(radius, degrees, centre=12.0):
    angle = math.radians(degrees)
    return f"{centre + radius * math.cos(angle):.2f} {centre + radius * math.sin(angle):.2f}"


def gear_path(teeth=8, inner=7.0, outer=9.6):
    points = []
    step = 360 / teeth
    for tooth in range(teeth):
        middle = tooth * step - 90
        for radius, offset in ((inner, -14.5), (outer, -9), (outer, 9), (inner, 14.5)):
            points.append(polar(radius, middle + offset))
    return "M" + "L".join(points) + "z"


def star_path(outer=9.8, inner=4.3, centre_y=12.8):
    points = []
    for corner in range(10):
        radius = outer if corner % 2 == 0 else inner
        angle = math.radians(36 * corner - 90)
        points.append(f"{12 + radius * math.cos(angle):.2f} {centre_y + radius * math.sin(angle):.2f}")
    return "M" + "L".join(points) + "z"


def lean(body):
    """Stringed instruments lean to the right and fill the tile; their lines keep the one width."""
    body = body.replace('class="l"', 'class="l s"').replace('class="a"', 'class="a s"')
    return ('<g transform="rotate(40 12 12) translate(12 13) scale(1.2 1.15) translate(-12 -13)">'
            f"{body}</g>")


FIGURE_EIGHT = ("M12 9.6c-2.4 0-3.9 1.2-3.9 3 0 1.6.7 1.8.1 2.9-.5.9-1.7 1.5-1.7 3.5 0 2.3 2.2 3.6 5.5 "
                "3.6s5.5-1.3 5.5-3.6c0-2-1.2-2.6-1.7-3.5-.6-1.1.1-1.3.1-2.9 0-1.8-1.5-3-3.9-3z")
PICTURE = '<rect class="l" x="3" y="4.5" width="18" height="15" rx="2"/>'
SHEET = '<path class="l" d="M6 2.8h8.2L19 7.6V21.2H6zM14 3v4.8h4.8"/>'

GLYPHS = {
    # strip and menus
    "help": '<circle class="l" cx="12" cy="12" r="9.2"/>'
            '<path class="a" d="M9.1 9.7a2.9 2.9 0 1 1 4.4 2.4c-1 .6-1.5 1.1-1.5 2.1"/>'
            '<circle class="b" cx="12" cy="17.2" r="1.3"/>',
    "share": '<path class="l" d="M8.6 10.7l6.6-3.5M8.6 13.3l6.6 3.5"/>'
             '<circle class="a" cx="6" cy="12" r="2.8"/>'
             '<circle class="l" cx="17.8" cy="5.8" r="2.8"/><circle class="l" cx="17.8" cy="18.2" r="2.8"/>',
    "join": '<circle class="l" cx="9.4" cy="7.6" r="3.8"/>'
            '<path class="l" d="M2.6 20.4c0-4 2.8-6.4 6.8-6.4s6.8 2.4 6.8 6.4"/>'
            '<path class="a" d="M19 7.4v6M16 10.4h6"/>',
    "bag": '<path class="l" d="M5 8.4h14l1.2 12.4H3.8z"/>'
           '<path class="l" d="M8.4 11V6.8a3.6 3.6 0 0 1 7.2 0V11"/>'
           '<path class="a" d="M12 13.4v4.8M9.6 15.8h4.8"/>',
    "star": f'<path class="l" d="{star_path()}"/>',
    "starfull": f'<path class="a" d="{star_path()}"/><path class="b" d="{star_path()}"/>',
    "lines": '<path class="l" d="M3.6 6h16.8M3.6 12h16.8"/><path class="a" d="M3.6 18h10.4"/>',
    "grid": "".join(
        f'<rect class="{"b" if (x, y) == (2, 2) else "f"}" x="{3.2 + 6.6 * x:.1f}" y="{3.2 + 6.6 * y:.1f}"'
        ' width="4.4" height="4.4" rx="1.2"/>' for y in range(3) for x in range(3)),
    "mail": '<rect class="l" x="2.8" y="5" width="18.4" height="14" rx="2"/>'
            '<path class="a" d="M3.6 7l8.4 6.4L20.4 7"/>',
    "globe": '<circle class="l" cx="12" cy="12" r="9.2"/>'
             '<path class="a" d="M3.2 12h17.6M12 3c-5 5.4-5 12.6 0 18c5-5.4 5-12.6 0-18"/>',
    "open": '<path class="l" d="M3 19.2V5.6a1.5 1.5 0 0 1 1.5-1.5h4.7l2.2 2.6h7.1a1.5 1.5 0 0 1 '
            '1.5 1.5v1.6"/><path class="l" d="M3.2 19.6l3-9.6h15.4l-3 9.6z"/>'
            '<path class="a" d="M12.4 17v-4.2M10.3 14.9h4.2"/>',
    "cross": '<circle class="l" cx="12" cy="12" r="9.2"/>'
             '<path class="a" d="M8.6 8.6l6.8 6.8M15.4 8.6l-6.8 6.8"/>',
    "folder": '<path class="l" d="M3 18.2V5.8a1.5 1.5 0 0 1 1.5-1.5h4.7l2.2 2.7h8.1a1.5 1.5 0 0 1 '
              '1.5 1.5v9.7a1.5 1.5 0 0 1-1.5 1.5h-15a1.5 1.5 0 0 1-1.5-1.5z"/>',
    "folderopen": '<path class="l" d="M3 18.8V5.8a1.5 1.5 0 0 1 1.5-1.5h4.7l2.2 2.7h7.3a1.5 1.5 0 0 1 '
                  '1.5 1.5v1.7"/><path class="l" d="M3.2 19.7l2.6-9.5h16l-2.6 9.5z"/>',
    "goto": '<path class="a" d="M3.5 12h15.5M12.5 5.2l7 6.8-7 6.8"/>',
    "gear": f'<path class="l" d="{gear_path()}"/><circle class="a" cx="12" cy="12" r="3"/>',
    "like": '<path class="l" d="M3 10.6h3.6v10H3z"/>'
            '<path class="a" d="M6.8 11.2l4-7.8c1.8 0 2.7 1.2 2.5 2.8l-.5 3.6h6.2c1.5 0 2.4 1.2 2 2.6'
            'l-1.8 6.6c-.3 1-1 1.6-2 1.6H6.8"/>',
    "mute": '<path class="l" d="M4 9.5h3.5L12 5.5v13l-4.5-4H4z"/>',
    "note": '<path class="l" d="M9.2 17.6V5.6l10.2-2.2v12"/><path class="l" d="M9.2 9.4l10.2-2.2"/>'
            '<ellipse class="f" cx="6.4" cy="17.8" rx="3.7" ry="3"/><ellipse class="f" cx="16.6" cy="15.6" rx="3.7" ry="3"/>',
    "noteplay": '<path class="l" d="M8.2 17.6V5.4l10-2.2v3.4M8.2 9l4.6-1"/>'
                '<ellipse class="f" cx="5.4" cy="17.8" rx="3.7" ry="3"/>'
                '<path class="a" d="M13.4 11.4v9.4l7.6-4.7z"/><path class="b" d="M13.4 11.4v9.4l7.6-4.7z"/>',
    # networks
    "facebook": '<path class="l" d="M15.8 4.6h-1.6c-1.7 0-2.7 1-2.7 2.8v12.4M8.4 11.4h6.6"/>',
    "twitter": '<path class="l" d="M9.2 4.4v11.2c0 2.4 1.3 4 3.7 4h1.9M6.6 9.2h8"/>',
    "vkontakte": '<path class="l" d="M3.4 7.2l4 9.6 4-9.6M14 5.6v11.2M20.4 7.2l-6 5.2 6.2 4.4"/>',
    "linkedin": '<path class="l" d="M6 10v8.6M10.6 10v8.6M10.6 14c0-2.6 1.4-4 3.7-4s3.7 1.4 3.7 4v4.6"/>'
                '<circle class="f" cx="6" cy="6" r="1.5"/>',
    "youtube": '<rect class="l" x="2.6" y="5" width="18.8" height="14" rx="3.6"/>'
               '<path class="f" d="M10 8.8l5.4 3.2-5.4 3.2z"/>',
    # catalogue
    "recorder": '<rect class="l" x="8.4" y="2.6" width="7.2" height="11.4" rx="3.6"/>'
                '<path class="a" d="M5 11.4c0 4 3 6.6 7 6.6s7-2.6 7-6.6M12 18v3.4M8.6 21.4h6.8"/>',
    "timecode": '<rect class="l" x="2.8" y="9.6" width="18.4" height="11.6" rx="1.8"/>'
                '<path class="l" d="M3 9.2L20 4.2"/>'
                '<path class="a" d="M6.6 13.4v4M10 13.4v4M14 13.4v4M17.4 13.4v4"/>',
    "midi": '<circle class="l" cx="12" cy="12" r="9.2"/>' + "".join(
        f'<circle class="b" cx="{polar(5.6, a).split()[0]}" cy="{polar(5.6, a).split()[1]}" r="1.4"/>'
        for a in (-180, -135, -90, -45, 0)) + '<path class="l" d="M10 20.6v-2.6h4v2.6"/>',
    "metronome": '<path class="l" d="M9 3h6l4 18H5zM6 16.6h12"/><path class="a" d="M12 16.4l7.6-11.8"/>'
                 '<circle class="f" cx="16" cy="10.2" r="2.2"/>',
    "guitar": lean(f'<path class="l" d="{FIGURE_EIGHT}M12 9.6V1.8M10.3 0h3.4"/>'
                   '<circle class="a" cx="12" cy="15.4" r="1.6"/><path class="a" d="M10.4 19.8h3.2"/>'),
    "bass": lean('<path class="l" d="M12.4 11.4c-.8-2.6-4.8-3-4.8-.4 0 1.8 1.1 2.6.8 4.2-.3 1.5-1.7 2-1.7 '
                 '4 0 2.3 2.2 3.4 5.3 3.4s5.3-1.1 5.3-3.4c0-2-1.2-2.5-1.6-4-.3-1.2.9-1.8.9-3.2 0-2-2.8-2.4'
                 '-4.2-.6zM12 11V-1M12-1h2.6M12 2h2.6"/>'
                 '<path class="a" d="M10 15.4h4M10 18.8h4"/>'),
    "ukulele": lean('<path class="l" d="M12 8.6c-2 0-3.2 1-3.2 2.6 0 1.3.5 1.5.1 2.4-.4.8-1.5 1.4-1.5 3.1 0 '
                    '2.1 1.9 3.2 4.6 3.2s4.6-1.1 4.6-3.2c0-1.7-1.1-2.3-1.5-3.1-.4-.9.1-1.1.1-2.4 0-1.6-1.2-2.6'
                    '-3.2-2.6zM12 8.6V4"/><path class="a" d="M10.2 1h3.6v3h-3.6zM10.6 16.8h2.8"/>'),
    "mandolin": lean('<path class="l" d="M12 8.4c-1 2.4-5.8 4-5.8 8.6 0 3.4 2.5 5.4 5.8 5.4s5.8-2 5.8-5.4c0-4.6'
                     '-4.8-6.2-5.8-8.6zM12 8.4V1.6M10.2 0h3.6"/>'
                     '<path class="a" d="M10.2 15.2a1.8 1.4 0 1 0 3.6 0a1.8 1.4 0 1 0-3.6 0M10 19.2h4"/>'),
    "banjo": lean('<circle class="l" cx="12" cy="16.6" r="5.8"/><path class="l" d="M12 10.8V0M10.2 0h3.6"/>'
                  '<circle class="a" cx="12" cy="16.6" r="2.2"/><path class="a" d="M12 5h2.4"/>'),
    "balalaika": lean('<path class="l" d="M12 9.2l6.8 12.4H5.2zM12 9.2V1.6M10.2 0h3.6"/>'
                      '<circle class="b" cx="12" cy="17" r="1.9"/>'),
    "violin": lean('<path class="l" d="M12 8.8c-2.6 0-3.8 1.2-3.8 2.8 0 1.2 1 1.5 1 2.7s-1.9 1.5-1.9 4 1.9 4 '
                   '4.7 4 4.7-1.5 4.7-4-1.9-2.8-1.9-4 1-1.5 1-2.7c0-1.6-1.2-2.8-3.8-2.8zM12 8.8V1.4"/>'
                   '<path class="l" d="M12 1.4c0-1.6 2.4-1.6 2.2.2"/>'
                   '<path class="a" d="M10.8 14v4.4M13.2 14v4.4"/>'),
    "piano": '<rect class="l" x="2.8" y="4.6" width="18.4" height="14.8" rx="1.8"/>'
             '<path class="l" d="M8.9 14.6v4.6M15.1 14.6v4.6"/>'
             '<path class="b" d="M7 5h3.8v8.6a.8.8 0 0 1-.8.8H7.8a.8.8 0 0 1-.8-.8zM13.2 5H17v8.6a.8.8 0 0 1-.8'
             '.8H14a.8.8 0 0 1-.8-.8z"/>',
    "viewer": PICTURE + '<circle class="b" cx="8.2" cy="9.2" r="1.7"/>'
              '<path class="a" d="M3.8 18l5.4-5.4 3.6 3.6 3-3 4.6 4.4"/>',
    "notes": '<path class="l" d="M20.4 11V6a1.8 1.8 0 0 0-1.8-1.8H4.8A1.8 1.8 0 0 0 3 6v11.2A1.8 1.8 0 0 0 4.8 '
             '19h4.6"/><path class="l" d="M6.6 8.8h10M6.6 12.4h5"/>'
             '<path class="a" d="M12.6 20.8l.6-3.2 6.6-6.6 2.4 2.4-6.6 6.6z"/>',
    "cropper": '<path class="l" d="M6.6 2.6v14.8h14.8"/><path class="a" d="M2.6 6.6h14.8v14.8"/>',
    "measurer": '<rect class="l" x="1.6" y="7.8" width="20.8" height="8.4" rx="1.2" transform="rotate(-45 12 12)"/>'
                '<path class="a" transform="rotate(-45 12 12)" d="M5.6 8.2v3M9.9 8.2v4.2M14.2 8.2v3M18.5 8.2v4.2"/>',
    "palette": '<path class="l" d="M12 2.8a9.2 9.2 0 1 0 0 18.4c1.8 0 2.4-1 2.1-2.2-.4-1.6.4-2.6 2-2.6h2.5c1.8 0 '
               '2.6-1.4 2.6-3.4 0-5.8-4.1-10.2-9.2-10.2z"/><circle class="b" cx="7.4" cy="12.6" r="1.5"/>'
               '<circle class="b" cx="9.6" cy="7.8" r="1.5"/><circle class="b" cx="15" cy="7.6" r="1.5"/>',
    "animation": '<rect class="l" x="3" y="4" width="18" height="16" rx="2"/><path class="l" d="M7 4v16M17 4v16M3 '
                 '9.3h4M3 14.7h4M17 9.3h4M17 14.7h4"/><path class="b" d="M10.2 8.8l4.6 3.2-4.6 3.2z"/>',
    "ftp": '<path class="l" d="M6.8 18.8a4.3 4.3 0 0 1-.6-8.5 6.2 6.2 0 0 1 12-.6 4.6 4.6 0 0 1-.6 9.1"/>'
           '<path class="a" d="M10 20.8v-7.4M7.8 15.4l2.2-2.2 2.2 2.2M14.4 13v7.6M12.2 18.6l2.2 2.2 2.2-2.2"/>',
    "contacts": '<rect class="l" x="4.6" y="3" width="16" height="18" rx="2"/><path class="l" d="M2.8 7.6h3M2.8 12h3M2.8 '
                '16.4h3"/><circle class="a" cx="12.8" cy="9.6" r="2.5"/>'
                '<path class="a" d="M8.4 17.4c0-2.6 1.8-3.9 4.4-3.9s4.4 1.3 4.4 3.9"/>',
    "cipher": '<rect class="l" x="4.4" y="10.4" width="15.2" height="11" rx="2"/>'
              '<path class="l" d="M7.6 10.4V7a4.4 4.4 0 0 1 8.8 0v3.4"/>'
              '<path class="a" d="M12 14.8v2.6"/><circle class="b" cx="12" cy="14.8" r="1.5"/>',
    "style": '<path class="l" d="M8 3.4c-2.6 0-3 1-3 3v2.4c0 1.8-.6 2.6-2.2 3.2 1.6.6 2.2 1.4 2.2 3.2v2.4c0 2 .4 3 '
             '3 3M16 3.4c2.6 0 3 1 3 3v2.4c0 1.8.6 2.6 2.2 3.2-1.6.6-2.2 1.4-2.2 3.2v2.4c0 2-.4 3-3 3"/>'
             '<path class="a" d="M9.4 9h5.2M9.4 15h5.2"/><path class="a" d="M9.4 12h2.6"/>',
    "minimizer": '<path class="l" d="M7.4 5.6L2.8 12l4.6 6.4M16.6 5.6l4.6 6.4-4.6 6.4"/>'
                 '<path class="a" d="M12 4v4.6M10 7l2 2 2-2M12 20v-4.6M10 17l2-2 2 2"/>',
}

# The letters of the formats' names, as strokes on a cell of 5 by 6.
LETTERS = {
    "W": "M0 0l1.2 6L2.5 1.6 3.8 6 5 0", "A": "M0 6L2.5 0 5 6M1 4h3", "V": "M0 0l2.5 6L5 0",
    "M": "M0 6V0l2.5 3.6L5 0v6", "4": "M3.8 6V0L0 4.2h5", "P": "M.4 6V0h2.4a1.8 1.8 0 0 1 0 3.6H.4",
    "3": "M.6 0h3.6L2.2 2.4a1.8 1.8 0 1 1-1.8 2.6",
}


def write(name, text):
    with open(os.path.join(HERE, name + ".svg"), "w", encoding="utf-8") as out:
        out.write(text)


def document(width, height, grid_width, grid_height, defs, style, body):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {grid_width} {grid_height}">\n<defs>\n{defs}\n</defs>\n<style>{style}</style>\n'
            f"{body}\n</svg>\n")


def vertical(identity, top, bottom, height=24):
    return (f'<linearGradient id="{identity}" gradientUnits="userSpaceOnUse" x1="0" y1="0" x2="0" y2="{height}">'
            f'<stop offset="0" stop-color="{top}"/><stop offset="1" stop-color="{bottom}"/></linearGradient>')


def inks(line, accent, width=2):
    return (f".l,.a{{fill:none;stroke-width:{width};stroke-linecap:round;stroke-linejoin:round}}"
            f".s{{stroke-width:{width / 1.2:.2f}}}.l{{stroke:{line}}}.f{{fill:{line}}}.a{{stroke:{accent}}}.b{{fill:{accent}}}")


SHADOW = ('<filter id="shadow" x="-20%" y="-20%" width="140%" height="150%">'
          '<feGaussianBlur in="SourceAlpha" stdDeviation="0.5"/><feOffset dy="0.9"/>'
          '<feComponentTransfer><feFuncA type="linear" slope="0.6"/></feComponentTransfer>'
          '<feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter>')


def glyph(name, key, size=32, lit=False, accent=GREEN, left=0):
    """A glyph alone: brushed metal at rest, white with its accent when lit; left of it a margin."""
    metal = vertical("metal", "#ffffff" if lit else "#f1f2f3", "#ececec" if lit else "#b3b6ba")
    style = inks("url(#metal)", accent if lit else "url(#metal)")
    turn = 180 if name == "dislike" else 0
    body = (f'<g filter="url(#shadow)" transform="translate({left} 0)"><g transform="rotate({turn} 12 12)">'
            f"{GLYPHS[key]}</g></g>")
    write(name, document(size + left, size, 24 + left * 24 // size, 24, metal + SHADOW, style, body))



FACES = {
    # top and bottom of the face, edge, gloss
    "rest": ("#636467", "#2b2b2d", "#8f8f8f", 0.2),
    "hover": ("#797b7f", "#333437", "#d2d2d2", 0.28),
    "pressed": ("#232325", "#4a4b4d", "#a8a8a8", 0.06),
}


def face(width, height, radius, state):
    top, bottom, edge, gloss = FACES[state]
    defs = (vertical("face", top, bottom, height) + vertical("edge", edge, "#4c4c4e", height)
            + f'<linearGradient id="gloss" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fff" '
              f'stop-opacity="{gloss}"/><stop offset="1" stop-color="#fff" stop-opacity="0"/></linearGradient>')
    body = (f'<rect x="1" y="1" width="{width - 2}" height="{height - 2}" rx="{radius}" fill="url(#face)" '
            f'stroke="url(#edge)" stroke-width="1.4"/>'
            f'<rect x="2.2" y="2.2" width="{width - 4.4}" height="{(height - 4) / 2:.1f}" rx="{radius - 1.2:.1f}" '
            f'fill="url(#gloss)"/>')
    return defs, body


PLAY = {
    "Pause": ('<rect x="27.5" y="10" width="4.6" height="15" rx="1.2"/>'
              '<rect x="35.9" y="10" width="4.6" height="15" rx="1.2"/>', "#f4f4f4", "#c3c5c8"),
    "Play": ('<path d="M28.6 10.4c0-1 .8-1.4 1.6-1l11.6 7.1c.8.5.8 1.5 0 2l-11.6 7.1c-.8.4-1.6 0-1.6-1z"/>',
             "#86f286", "#22b422"),
    "Stop": ('<rect x="27.5" y="11" width="13" height="13" rx="1.6"/>', "#ff8d82", "#d22d22"),
}


def play_button(key, state, name):
    defs, body = face(68, 35, 6, state)
    shape, top, bottom = PLAY[key]
    if state == "hover":
        top = {"Pause": "#ffffff", "Play": "#c6ffc6", "Stop": "#ffb9b1"}[key]
    shift = 1 if state == "pressed" else 0
    defs += SHADOW + (f'<linearGradient id="ink" gradientUnits="userSpaceOnUse" x1="0" y1="8" x2="0" y2="27">'
                      f'<stop offset="0" stop-color="{top}"/><stop offset="1" stop-color="{bottom}"/></linearGradient>')
    body += f'<g fill="url(#ink)" filter="url(#shadow)" transform="translate(0 {shift})">{shape}</g>'
    write(name, document(68, 35, 68, 35, defs, "", body))


def glyph_button(name, key, size, state, accent):
    """A glyph on the face of a button."""
    defs, body = face(size, size, 6, state)
    metal = vertical("metal", "#ffffff", "#ffffff" if state == "hover" else "#c3c5c8")
    unit = size * 0.66 / 24
    offset = (size - 24 * unit) / 2
    style = inks("url(#metal)", accent if state == "hover" else "url(#metal)")
    body += (f'<g filter="url(#shadow)" transform="translate({offset:.2f} {offset:.2f}) scale({unit:.4f})">'
             f"{GLYPHS[key]}</g>")
    write(name, document(size, size, size, size, defs + metal + SHADOW, style, body))


def tile(name, size, hue, body, grid=64, style="", lit=False):
    """A rounded tile with light from above, the ground of catalogue and network pictures."""
    top, bottom = hue
    gloss = 0.34 if lit else 0.22
    defs = (vertical("ground", top, bottom, grid) + SHADOW
            + vertical("metal", "#ffffff", "#d5d7da")
            + '<linearGradient id="gloss" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fff" '
              f'stop-opacity="{gloss}"/><stop offset="1" stop-color="#fff" stop-opacity="0.02"/></linearGradient>')
    ground = (f'<rect x="2" y="2" width="{grid - 4}" height="{grid - 4}" rx="13" fill="url(#ground)" stroke="#0a0a0a" '
              f'stroke-opacity="0.7" stroke-width="1.5"/>'
              f'<rect x="3.7" y="3.7" width="{grid - 7.4}" height="{grid - 7.4}" rx="11.6" fill="none" '
              f'stroke="url(#gloss)" stroke-width="1.8"/>')
    write(name, document(size, size, grid, grid, defs, style, ground + body))


def glyph_tile(name, key, size, hue, accent, lit=False):
    body = f'<g filter="url(#shadow)" transform="translate(11 11) scale(1.75)">{GLYPHS[key]}</g>'
    tile(name, size, hue, body, style=inks("url(#metal)", accent), lit=lit)


CHARCOAL = ("#4a4d52", "#191a1c")
BARS = [(13, 14), (21, 26), (29, 18), (37, 34), (45, 22), (53, 10)]


def bars(xs_and_heights, middle, width, first_green, accent):
    drawn = ""
    for number, (x, height) in enumerate(xs_and_heights):
        colour = accent if number >= first_green else "#eceeef"
        drawn += (f'<path d="M{x - 2} {middle - height / 2:.1f}v{height}" stroke="{colour}" stroke-width="{width}" '
                  'stroke-linecap="round" fill="none"/>')
    return drawn


def converter_tile(name, word, accent):
    """The converters: a sound whose second half has taken the colour of the format."""
    body = f'<g filter="url(#shadow)">{bars([(x, h * 0.74) for x, h in BARS], 25, 4.4, 3, accent)}</g>'
    cells = "".join(f'<path transform="translate({number * 7.4:.1f} 0)" d="{LETTERS[letter]}"/>'
                    for number, letter in enumerate(word))
    body += (f'<g transform="translate(15.5 45) scale(1.66)" fill="none" stroke="#fff" stroke-width="1.45" '
             f'stroke-linecap="round" stroke-linejoin="round">{cells}</g>')
    tile("catalogue/" + name, 64, CHARCOAL, body)


def strip_and_menus():
    for name, key in (("Help", "help"), ("share", "share"), ("join", "join"), ("MoreAppsButton", "bag"),
                      ("AppMenu", "lines"), ("More", "grid")):
        glyph(name, key)
        glyph(name + "_hover", key, lit=True)
    glyph("rate", "star")
    glyph("rate_hover", "starfull", lit=True, accent=AMBER)
    glyph("star", "starfull", lit=True, accent=AMBER)
    for name, key in (("feedback", "mail"), ("webpage", "globe"), ("moreappsicon", "bag"), ("openfiles", "open")):
        glyph(name, key, lit=True)
    glyph("close", "cross", lit=True, accent="#ff8d82")
    for suffix, key, lit in (("", "folder", False), ("_hvr", "folder", True), ("_chk", "folderopen", False),
                             ("_chk_hvr", "folderopen", True)):
        glyph("BrowseButton" + suffix, key, 24, lit)
    glyph("Button_GoTo", "goto", 16, lit=True)
    glyph("like", "like", 24, lit=True, left=8)
    glyph("dislike", "like", 24, lit=True, accent="#ff8d82", left=8)



def buttons():
    for key in PLAY:
        play_button(key, "rest", "Play" + key)
        play_button(key, "hover", "Play" + key + "Hover")
    play_button("Stop", "pressed", "PlayStopPressed")
    glyph_button("exportsettingsbutton", "gear", 35, "rest", GREEN)
    glyph_button("exportsettingsbutton_hover", "gear", 35, "hover", GREEN)


def tiles():
    for name, accent in (("wav", BLUE), ("m4a", GREEN), ("mp3", AMBER)):
        converter_tile(name, name.upper(), accent)
    families = (
        (GREEN, ("recorder", "timecode", "midi", "metronome")),
        (AMBER, ("guitar", "bass", "ukulele", "mandolin", "banjo", "balalaika", "piano", "violin")),
        (BLUE, ("viewer", "notes", "cropper", "measurer", "palette", "animation")),
        (VIOLET, ("ftp", "contacts", "cipher", "style", "minimizer")),
    )
    for accent, keys in families:
        for key in keys:
            glyph_tile("catalogue/" + key, key, 64, CHARCOAL, accent)
    grounds = {"facebook": ("#4d74b8", "#24427d"), "twitter": ("#3f93bd", "#175a7d"),
               "vkontakte": ("#5a7fa8", "#2c4a6e"), "linkedin": ("#3c7fae", "#164a70"),
               "youtube": ("#c0493f", "#7d1710"), "mail": CHARCOAL}
    lit_grounds = {"facebook": ("#678fd4", "#335699"), "twitter": ("#57b0dc", "#1f6d97"),
                   "vkontakte": ("#7499c4", "#3b5f8a"), "linkedin": ("#539bcc", "#1f5b8b"),
                   "youtube": ("#db6257", "#9b2017"), "mail": ("#6c7077", "#2d2f32")}
    for key, (top, bottom) in grounds.items():
        name = "network_" + ("email" if key == "mail" else key)
        glyph_tile(name, key, 48, (top, bottom), "url(#metal)")
        glyph_tile(name + "_hover", key, 48, lit_grounds[key], "url(#metal)", lit=True)


APP_BARS = [(14, 12), (20, 22), (26, 14), (32, 30), (38, 19), (44, 25), (50, 10)]
SMALL_BARS = [(14, 16), (23, 32), (32, 22), (41, 38), (50, 20)]


def app_body(xs_and_heights, middle, width, first_green, word=""):
    ink = ('<linearGradient id="go" gradientUnits="userSpaceOnUse" x1="0" y1="10" x2="0" y2="54">'
           '<stop offset="0" stop-color="#9bf59b"/><stop offset="1" stop-color="#1fae1f"/></linearGradient>'
           '<linearGradient id="come" gradientUnits="userSpaceOnUse" x1="0" y1="10" x2="0" y2="54">'
           '<stop offset="0" stop-color="#fff"/><stop offset="1" stop-color="#b9bcc0"/></linearGradient>'
           '<radialGradient id="light" gradientUnits="userSpaceOnUse" cx="32" cy="4" r="46">'
           '<stop offset="0" stop-color="#fff" stop-opacity="0.24"/><stop offset="1" stop-color="#fff" '
           'stop-opacity="0"/></radialGradient>')
    drawn = '<rect x="4.5" y="4.5" width="55" height="55" rx="10.8" fill="url(#light)"/>'
    drawn += '<g filter="url(#shadow)">'
    for number, (x, height) in enumerate(xs_and_heights):
        colour = "go" if number >= first_green else "come"
        drawn += (f'<rect x="{x - width / 2}" y="{middle - height / 2 - width / 2}" width="{width}" '
                  f'height="{height + width}" rx="{width / 2}" fill="url(#{colour})"/>')
    drawn += "</g>"
    if word:
        cells = "".join(f'<path transform="translate({number * 7.3:.1f} 0)" d="{LETTERS[letter]}"/>'
                        for number, letter in enumerate(word))
        drawn += (f'<g transform="translate(20.6 47.6) scale(1.16)" fill="none" stroke="#fff" stroke-width="1.5" '
                  f'stroke-linecap="round" stroke-linejoin="round">{cells}</g>')
    return ink, drawn


def program():
    """The program's icon; below 32 pixels without the word and with fewer, broader bars."""
    for name, size, (ink, body) in (("app", 128, app_body(APP_BARS, 27.5, 3.6, 3, "M4A")),
                                    ("app-small", 32, app_body(SMALL_BARS, 32, 5.6, 2))):
        tile(name, size, ("#54585d", "#141516"), body)
        path = os.path.join(HERE, name + ".svg")
        text = open(path, encoding="utf-8").read().replace("</defs>", ink + "\n</defs>", 1)
        write(name, text)


def updates():
    """The program with a badge: an arrow for something to fetch, a hook for nothing to do."""
    ink, body = app_body(SMALL_BARS, 30, 5.6, 2)
    badges = {"update_available": ("#2fc42f", "#0b7a0b", "M48 41v13M42.5 49.5L48 55l5.5-5.5"),
              "update_not_available": ("#85888d", "#3c3e41", "M41.8 48.6l4.4 4.4 8-8.6")}
    for name, (top, bottom, mark) in badges.items():
        badge = (f'<linearGradient id="badge" gradientUnits="userSpaceOnUse" x1="0" y1="35" x2="0" y2="61">'
                 f'<stop offset="0" stop-color="{top}"/><stop offset="1" stop-color="{bottom}"/></linearGradient>')
        drawn = (f'{body}<g filter="url(#shadow)"><circle cx="48" cy="48" r="13" fill="url(#badge)" stroke="#fff" '
                 f'stroke-width="2"/><path d="{mark}" fill="none" stroke="#fff" stroke-width="3" '
                 f'stroke-linecap="round" stroke-linejoin="round"/></g>')
        tile(name, 96, ("#54585d", "#141516"), drawn)
        path = os.path.join(HERE, name + ".svg")
        text = open(path, encoding="utf-8").read().replace("</defs>", ink + badge + "\n</defs>", 1)
        write(name, text)


def messages():
    """The pictures of message boxes."""
    disc = '<circle cx="12" cy="12" r="9.8" fill="url(#ground)" stroke="#fff" stroke-width="1.4"/>'
    triangle = ('<path d="M12 2.6L22.2 20.8H1.8z" fill="url(#ground)" stroke="#fff" stroke-width="1.4" '
                'stroke-linejoin="round"/>')
    ask = '<path class="l" d="M9.2 9.8a2.8 2.8 0 1 1 4.3 2.3c-1 .6-1.5 1.1-1.5 2.1"/>'
    for name, ground, top, bottom, mark in (
            ("information", disc, "#3f93bd", "#175a7d",
             '<path class="l" d="M12 11.2v5.6"/><circle class="f" cx="12" cy="7.4" r="1.3"/>'),
            ("question", disc, "#2fb42f", "#0b6e0b", ask + '<circle class="f" cx="12" cy="17.2" r="1.3"/>'),
            ("critical", disc, "#d9493e", "#8a120b", '<path class="l" d="M8.6 8.6l6.8 6.8M15.4 8.6l-6.8 6.8"/>'),
            ("warning", triangle, "#f0a52e", "#a85f00",
             '<path class="l" d="M12 9v5.2"/><circle class="f" cx="12" cy="17.6" r="1.3"/>')):
        body = f'<g filter="url(#shadow)">{ground}</g>{mark}'
        write(name, document(48, 48, 24, 24, vertical("ground", top, bottom) + SHADOW, inks("#fff", "#fff"), body))


def rows():
    glyph("note", "note", 64)
    glyph("noteplay", "noteplay", 64, lit=True)
    defs, body = face(24, 24, 6, "rest")
    style = inks("#f4f4f4", "#f4f4f4")
    body += '<path class="l" filter="url(#shadow)" d="M7.5 10l4.5 4.5 4.5-4.5"/>'
    write("PopupButton", document(96, 96, 24, 24, defs + SHADOW, style, body))


def wave(width, middle, height, period, count, colour, opacity):
    lines = ""
    for number in range(count):
        x = width * (number + 0.5) / count
        envelope = math.sin(math.pi * (number + 0.5) / count) ** 1.4
        ripple = 0.45 + 0.55 * abs(math.sin(number * 2 * math.pi / period) * math.cos(number * 1.7))
        half = height / 2 * envelope * ripple + 1
        lines += f"M{x:.1f} {middle - half:.1f}v{2 * half:.1f}"
    return (f'<path d="{lines}" stroke="{colour}" stroke-opacity="{opacity}" stroke-width="{width / count * 0.42:.2f}" '
            'stroke-linecap="round" fill="none"/>')


def surfaces():
    # Fades out to the sides: in a wide window the panel's own ground goes on from there.
    defs = (vertical("ground", "#47494d", "#161718", 280)
            + '<linearGradient id="sides"><stop offset="0" stop-color="#000"/><stop offset="0.28" stop-color="#fff"/>'
              '<stop offset="0.72" stop-color="#fff"/><stop offset="1" stop-color="#000"/></linearGradient>'
              '<mask id="fade"><rect width="840" height="280" fill="url(#sides)"/></mask>'
              '<radialGradient id="light" cx="0.5" cy="0" r="0.8"><stop offset="0" stop-color="#fff" stop-opacity="0.16"/>'
              '<stop offset="1" stop-color="#fff" stop-opacity="0"/></radialGradient>')
    body = ('<g mask="url(#fade)"><rect width="840" height="280" fill="url(#ground)"/>'
            + wave(840, 150, 190, 11, 70, "#fff", 0.07)
            + '<rect width="840" height="280" fill="url(#light)"/></g>')
    write("Box", document(840, 280, 840, 280, defs, "", body))

    body = ('<rect x="18" y="16" width="804" height="248" rx="22" fill="#000" fill-opacity="0.4" stroke="#fff" '
            'stroke-opacity="0.5" stroke-width="4" stroke-linecap="round" stroke-dasharray="18 13"/>'
            '<g opacity="0.17" fill="none" stroke="#fff" stroke-linecap="round" stroke-linejoin="round" '
            'stroke-width="1.7"><g transform="translate(58 74) scale(5.5)">'
            + GLYPHS["note"].replace('class="f"', 'fill="#fff" stroke="none"')
            + '</g><g transform="translate(650 74) scale(5.5)">'
            + GLYPHS["animation"].replace('class="b"', 'fill="#fff" stroke="none"')
            + "</g></g>")
    write("droparea", document(840, 280, 840, 280, "", "", body))

    defs = vertical("ground", "#515356", "#232426", 45)
    body = ('<rect width="64" height="45" fill="url(#ground)"/><rect width="64" height="1" fill="#fff" '
            'fill-opacity="0.22"/><rect y="44" width="64" height="1" fill="#000" fill-opacity="0.6"/>')
    write("backgroundbar", document(64, 45, 64, 45, defs, "", body))

    weave = "".join(f"M{x} 0l48 48" for x in range(-48, 48, 6))
    body = ('<rect width="48" height="48" fill="#2b2c2e"/>'
            f'<path d="{weave}" stroke="#fff" stroke-opacity="0.035" stroke-width="1.6" fill="none"/>'
            f'<path transform="translate(3 0)" d="{weave}M-51 0l48 48" stroke="#000" stroke-opacity="0.14" '
            'stroke-width="1.6" fill="none"/>')
    write("panelbackground", document(48, 48, 48, 48, "", "", body))

    body = '<path d="M.8 1.7h5.4L3.5 5.9z" fill="#e8e9ea" stroke="#e8e9ea" stroke-width="0.8" stroke-linejoin="round"/>'
    write("spinbox_button2", document(7, 7, 7, 7, "", "", body))


def maker():
    """The maker's mark: a V of sound, and the name."""
    mark = "".join(f'<path d="M{x} 9v{length}" stroke="{colour}"/>' for x, length, colour in (
        (5, 7, "url(#metal)"), (12, 18, "url(#metal)"), (19, 29, GREEN), (26, 18, "url(#metal)"),
        (33, 7, "url(#metal)")))
    letters = ((48, "M0 21l6 14 6-14"), (64.5, "M.2 28.2h13.5a6.8 7 0 1 0-2.6 5.4"), (83.5, "M0 9v26"),
               (90.5, "M0 35V21M0 27c0-4 1.9-6 4.8-6s4.8 2 4.8 6v8M9.6 27c0-4 1.9-6 4.8-6s4.8 2 4.8 6v8"),
               (114, "M0 28a7 7 0 1 0 14 0a7 7 0 1 0-14 0"), (133.5, "M0 35V21M0 28c0-4.5 2.4-7 6.4-7"),
               (143.5, "M0 28a7 7 0 1 0 14 0a7 7 0 1 0-14 0M14 21v14"))
    name = "".join(f'<path transform="translate({x} 0)" d="{d}" stroke="url(#metal)"/>' for x, d in letters)
    body = (f'<g filter="url(#shadow)" fill="none" stroke-linecap="round" stroke-linejoin="round"><g '
            f'stroke-width="4.4">{mark}</g><g stroke-width="2.8">{name}</g></g>')
    write("velmora", document(165, 46, 165, 46, vertical("metal", "#ffffff", "#b3b6ba", 46) + SHADOW, "", body))


if __name__ == "__main__":
    program()
    updates()
    messages()
    rows()
    surfaces()
    maker()
    strip_and_menus()
    buttons()
    tiles()
