#!/usr/bin/env python3
"""Generates the built-in Karvex themes (light, dark, high contrast).

Every colour set is derived from a few base colours by rules: a name is
matched against RULES (first match wins) to get a role such as "fill:red" or
"text:2"; the theme turns the role into a normal colour; the state rules turn
that into the six state colours. Afterwards every text/icon set is checked
against its background with the pairing rule of contrast-pairs.json (the
one BzThemeAudit compiles in) and its lightness is moved (hue kept) until
the contrast is met.

    python3 tools/themegen/gen_themes.py              # write the three files
    python3 tools/themegen/gen_themes.py --check      # generate and check only
    python3 tools/themegen/gen_themes.py --palette    # base colours as Markdown
    python3 tools/themegen/gen_themes.py -v           # list adjusted colours

Standard library only. See docs/themes.md for the rules in prose.
"""

import argparse
import json
import math
import os
import re
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.normpath(os.path.join(HERE, "..", ".."))
TOKENS = os.path.join(HERE, "tokens.txt")
EXTRA = os.path.join(HERE, "extra-names.txt")
OUT_DIR = os.path.join(ROOT, "src", "resources", "themes")
PAIRING = os.path.join(OUT_DIR, "contrast-pairs.json")

STATES = ("normal", "hovered", "pressed", "disabled", "focused", "checked")
N, HOV, PRS, DIS, FOC, CHK = range(6)
MARGIN = 0.1  # contrast head-room over the required ratio
STATE_RATIO = 3.0  # least contrast of text in hovered/pressed/checked (light, dark)

# --------------------------------------------------------------------------
# Colour maths: sRGB <-> OKLab/OKLCH, WCAG 2.1 luminance and contrast.
# Colours are (r, g, b, a) tuples of 8-bit ints so that every check sees
# exactly what ends up in the files.


def _lin(c):
    return c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4


def _delin(c):
    return 12.92 * c if c <= 0.0031308 else 1.055 * c ** (1 / 2.4) - 0.055


def _cbrt(x):
    return math.copysign(abs(x) ** (1 / 3), x)


def to_oklch(col):
    r, g, b = (_lin(v / 255) for v in col[:3])
    l = _cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b)
    m = _cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b)
    s = _cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b)
    L = 0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s
    a = 1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s
    bb = 0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s
    return L, math.hypot(a, bb), math.degrees(math.atan2(bb, a)) % 360


def _oklch_to_lin(L, C, h):
    a, b = C * math.cos(math.radians(h)), C * math.sin(math.radians(h))
    l = (L + 0.3963377774 * a + 0.2158037573 * b) ** 3
    m = (L - 0.1055613458 * a - 0.0638541728 * b) ** 3
    s = (L - 0.0894841775 * a - 1.2914855480 * b) ** 3
    return (4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s,
            -1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s,
            -0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s)


def from_oklch(L, C, h, alpha=255):
    """OKLCH to an 8-bit colour; chroma is reduced until it fits sRGB."""
    L = min(1.0, max(0.0, L))

    def fits(c):
        return all(-1e-6 <= v <= 1 + 1e-6 for v in _oklch_to_lin(L, c, h))

    if not fits(C):
        lo, hi = 0.0, C
        for _ in range(30):
            mid = (lo + hi) / 2
            lo, hi = (mid, hi) if fits(mid) else (lo, mid)
        C = lo
    rgb = _oklch_to_lin(L, C, h)
    return tuple(int(round(min(1.0, max(0.0, _delin(min(1.0, max(0.0, v))))) * 255)) for v in rgb) + (alpha,)


def with_alpha(col, alpha):
    return col[:3] + (int(round(alpha)),)


def compose(top, bottom):
    """Source-over of `top` on an opaque `bottom`."""
    a = top[3] / 255
    return tuple(int(round(t * a + b * (1 - a))) for t, b in zip(top[:3], bottom[:3])) + (255,)


def luminance(col):
    r, g, b = (_lin(v / 255) for v in col[:3])
    return 0.2126 * r + 0.7152 * g + 0.0722 * b


def contrast(a, b):
    la, lb = luminance(a), luminance(b)
    return (max(la, lb) + 0.05) / (min(la, lb) + 0.05)


def hexcol(col):
    s = "#%02x%02x%02x" % col[:3]
    return s if col[3] == 255 else s + "%02x" % col[3]


WHITE = (255, 255, 255, 255)
BLACK = (0, 0, 0, 255)
CLEAR = (0, 0, 0, 0)

# --------------------------------------------------------------------------
# Pairing rule: the words come from contrast-pairs.json, which BzThemeAudit
# reads too; the tie-break order below matches bzthemeaudit.cpp.

with open(PAIRING, encoding="utf-8") as _fh:
    _RULE = json.load(_fh)
BG_ENDS = tuple(w.lower() for w in _RULE["background"]["segmentEndsWith"])
FG_WORDS = tuple(w.lower() for w in _RULE["foreground"]["segmentContains"])
NONFG = tuple(w.lower() for w in _RULE["foreground"]["lastSegmentExcludes"])
SURFACE = _RULE["surface"]
RATIO = _RULE["requiredRatio"]


def segs(n):
    return n.split('-')


def is_bg(n):
    return any(s.lower().endswith(BG_ENDS) for s in segs(n)[1:])


def is_fg(n):
    r = [s.lower() for s in segs(n)[1:]]
    if not r or is_bg(n):
        return False
    if any(w in r[-1] for w in NONFG):
        return False
    return any(w in s for s in r for w in FG_WORDS)


def prefix(a, b):
    k = 0
    for x, y in zip(a, b):
        if x != y:
            break
        k += 1
    return k


def pair(fg, names):
    fs = segs(fg)
    fam = fs[0]
    c = [n for n in names if segs(n)[0] == fam and is_bg(n)]
    if not c:
        return None

    def key(b):
        bs = segs(b)
        return (-prefix(fs, bs), -len(set(fs) & set(bs)), len(bs), b)
    return min(c, key=key)


# --------------------------------------------------------------------------
# Base colours. Hues are OKLCH hue angles with the most chroma the hue may
# use; each theme picks the lightness per role.

HUES = {
    # name:    (hue angle, max chroma)
    "neutral": (262, 0.006),
    "brand":   (256, 0.165),
    "red":     (26, 0.190),
    "green":   (150, 0.150),
    "amber":   (68, 0.160),
    "purple":  (312, 0.165),
    "cobalt":  (270, 0.170),
    "cyan":    (218, 0.120),
    "gold":    (86, 0.135),
    "lime":    (128, 0.170),
    "mint":    (172, 0.115),
    "orange":  (46, 0.170),
    "pink":    (352, 0.165),
    "slate":   (248, 0.035),
    "violet":  (290, 0.170),
    "yellow":  (100, 0.170),
    # high-contrast accents: interactive and selected
    "hcYellow": (104, 0.210),
    "hcCyan":   (205, 0.150),
}

# Hues light enough that their fills carry dark text.
LIGHT_HUES = {"amber", "gold", "lime", "yellow"}

# Keywords in names that stand for a hue.
HUE_WORDS = {
    "red": "error cancel alert important missed decline endCall busy dnd recording danger destructive "
           "unavailable presenting meeting pdf inProgress",
    "green": "success join active available call on-device on-mobile excel lowrisk refresh",
    "amber": "warning warn caution away issue reassign on-hold paused slides",
    "purple": "announcement announce newFeature teaching ooo onenote",
    "brand": "primary default defaultStatic accent info notification checking populated doc public share",
    "cobalt": "word schedule staticShare",
    "cyan": "keynotes",
    "mint": "sheets",
    "orange": "powerpoint confidential",
    "violet": "cybersec ai",
    "slate": "quiet-hours blocked static archived",
}
KEYWORD_HUE = {w: hue for hue, words in HUE_WORDS.items() for w in words.split()}
CHIP_NUMBERS = {"one": "cobalt", "two": "cyan", "three": "gold", "four": "lime", "five": "mint",
                "six": "orange", "seven": "pink", "eight": "purple", "nine": "violet", "ten": "slate",
                "unknown": "neutral"}


def hue_of(word):
    if word in HUES or word == "sel":
        return word
    if word in CHIP_NUMBERS:
        return CHIP_NUMBERS[word]
    if word in KEYWORD_HUE:
        return KEYWORD_HUE[word]
    raise KeyError("no hue for '%s'" % word)


# --------------------------------------------------------------------------
# Themes. "n" is the neutral ramp (OKLab lightness); the other numbers are
# the lightness (and chroma) each role uses.

THEMES = {
    "light": dict(
        id="light", file="light.json", dark=False, hc=False, req=RATIO["default"],
        n=dict(surf0=1.0, surf1=0.978, surf2=0.958, surf3=0.935,
               text1=0.25, text2=0.47, text3=0.53,
               strong=0.66, subtle=0.86, div=0.91,
               inv1=0.985, inv2=0.86, thumb=0.76, track=0.90, buffer=0.80,
               check0=0.97, check1=0.90, toast=0.30, toastline=0.38,
               ontoast1=0.985, ontoast2=0.86, video=0.18, ink=0.22),
        fill=0.53, fillLight=0.80, tint=(0.955, 0.035), tintLine=(0.80, 0.09), tintText=0.43,
        htext=0.48, hline=0.56, ind=0.62, avatar=(0.88, 0.07), onhue=(0.94, 0.06), bright=0.80,
        ghost=((0, 0, 0, 13), (0, 0, 0, 26)),
        up=(0.035, 0.07), down=(0.035, 0.07), flip=lambda L: +1 if L < 0.40 else -1,
        disabledL=0.90, fadeText=0.40, fadeLine=0.40,
    ),
    "dark": dict(
        id="dark", file="dark.json", dark=True, hc=False, req=RATIO["default"],
        n=dict(surf0=0.215, surf1=0.245, surf2=0.275, surf3=0.31,
               text1=0.95, text2=0.80, text3=0.72,
               strong=0.54, subtle=0.38, div=0.32,
               inv1=0.22, inv2=0.42, thumb=0.48, track=0.34, buffer=0.45,
               check0=0.30, check1=0.36, toast=0.38, toastline=0.46,
               ontoast1=0.985, ontoast2=0.86, video=0.16, ink=0.22),
        fill=0.55, fillLight=0.80, tint=(0.32, 0.06), tintLine=(0.50, 0.10), tintText=0.86,
        htext=0.80, hline=0.70, ind=0.72, avatar=(0.42, 0.09), onhue=(0.94, 0.06), bright=0.80,
        ghost=((255, 255, 255, 18), (255, 255, 255, 33)),
        up=(0.045, 0.09), down=(0.045, 0.09), flip=lambda L: -1 if L > 0.80 else +1,
        disabledL=0.30, fadeText=0.40, fadeLine=0.40,
    ),
    "highContrast": dict(
        id="highContrast", file="highcontrast.json", dark=True, hc=True, req=RATIO["highContrast"],
        n=dict(surf0=0.0, surf1=0.0, surf2=0.0, surf3=0.0,
               text1=1.0, text2=0.93, text3=0.88,
               strong=1.0, subtle=0.86, div=0.78,
               inv1=0.0, inv2=0.22, thumb=0.90, track=0.42, buffer=0.66,
               check0=0.0, check1=0.32, toast=0.0, toastline=1.0,
               ontoast1=1.0, ontoast2=0.93, video=0.0, ink=0.0),
        fill=0.76, fillLight=0.84, tint=(0.0, 0.0), tintLine=(0.86, 0.20), tintText=0.88,
        htext=0.88, hline=0.86, ind=0.86, avatar=(0.32, 0.09), onhue=(0.0, 0.0), bright=0.88,
        ghost=(None, None),  # opaque greys instead, see derive_states
        up=(0.30, 0.41), down=(0.10, 0.20), flip=lambda L: -1 if L > 0.60 else +1,
        disabledL=0.0, fadeText=None, fadeLine=None,
        disabledText=0.62, disabledLine=0.50,
        # interactive and selected accents
        remap={"brand": "hcYellow", "sel": "hcCyan"},
        fixedL={"hcYellow": 0.95, "hcCyan": 0.88},
    ),
}


def resolve_hue(T, hue):
    remap = T.get("remap", {"sel": "brand"})
    return remap.get(hue, hue if hue != "sel" else "brand")


def tone(T, hue, L, C=None, alpha=255):
    h, cmax = HUES[resolve_hue(T, hue)]
    return from_oklch(L, cmax if C is None else min(C, cmax), h, alpha)


def gray(L, alpha=255):
    h, c = HUES["neutral"]
    return from_oklch(L, 0.0 if L >= 0.99 or L <= 0.01 else c, h, alpha)


def nl(T, level):
    return gray(T["n"][level])


def fill_color(T, hue, forceWhiteText=False):
    """A filled background: the theme's fill lightness, moved just far enough
    that white text (black in high contrast) keeps the required contrast.
    Light hues (amber, gold, ...) stay light and carry dark text instead."""
    hue = resolve_hue(T, hue)
    if T["hc"]:
        L = T.get("fixedL", {}).get(hue, T["fill"])
        col = tone(T, hue, L)
        while contrast(col, BLACK) < T["req"] + MARGIN and L < 1:
            L += 0.005
            col = tone(T, hue, L)
        return col
    if hue in LIGHT_HUES and not forceWhiteText:
        return tone(T, hue, T["fillLight"])
    L = T["fill"]
    col = tone(T, hue, L)
    while contrast(col, WHITE) < T["req"] + MARGIN and L > 0:
        L -= 0.005
        col = tone(T, hue, L)
    return col


def on_color(T, bg):
    """Text on a filled colour: white (black in high contrast) when it reads."""
    order = (BLACK, WHITE) if T["hc"] else (WHITE, gray(T["n"]["ink"]))
    for c in order:
        if contrast(c, bg) >= T["req"] + MARGIN:
            return c
    return max(order, key=lambda c: contrast(c, bg))


def scrim(T):
    return BLACK if T["hc"] else (0, 0, 0, 163)  # 64 %


# --------------------------------------------------------------------------
# Rules: regular expression (full match) -> role. {1} takes the hue from the
# first group. "+sel" marks selectable things whose checked state is the
# selection colour; "~1"/"~2" starts one or two emphasis steps further.
# "+graphic" marks fills that carry meaning on their own (a slider's track):
# high contrast keeps them visible when disabled, in the disabled line grey,
# or with "+graphic:strong" in the brighter disabled text grey.

RULES = [
    # global
    (r"transparent", "clear"),
    (r"global-focus-outline", "focus"),
    (r"panel-primary-background", "surf:0"),
    (r"panel-secondary-background", "surf:1"),
    (r"panel-tertiary-background", "surf:2"),
    (r"(modal|menulistbackground|popover)-primary-background", "surf:0"),
    (r"(modal|menulistbackground)-secondary-background", "surf:1"),
    (r"(modal|menulistbackground)-tertiary-background", "surf:2"),
    (r"(modal|menulistbackground)-\w+-border", "line:subtle"),
    (r"separator-common", "line:div"),
    (r"separator-primary", "line:subtle"),
    (r"separator-secondary", "line:div"),

    # alert badges, badges, banners
    (r"alertbadge-(\w+)-background", "fill:{1}"),
    (r"alertbadge-(\w+)-text", "on:{1}"),
    (r"badge-background", "fill:brand"),
    (r"badge-text", "on:brand"),
    (r"badge-warning-icon", "onhue:amber"),
    (r"badge-secondary-background", "surf:3"),
    (r"badge-secondary-text", "text:1"),
    (r"badge-(\w+)-(indicator|alert)", "ind:{1}"),
    (r"banner-style-transient-background", "toast"),
    (r"banner-style-transient-text", "ontoast:1"),
    (r"banner-style-(\w+)-background", "fill:{1}"),
    (r"banner-style-(\w+)-text", "on:{1}"),
    (r"banner-icon-live-active", "onhue:red"),
    (r"banner-icon-live-inactive", "onhue:purple"),

    # attachments and shared content
    (r"attachment-audio-background", "surf:1"),
    (r"attachment-audio-outline", "line:subtle"),
    (r"attachment-audio-(file-detail|time-left)", "text:2"),
    (r"attachment-ecm-no-thumbail-background", "surf:1"),
    (r"attachment-ecm-no-thumbail-previewBox-background", "surf:3"),
    (r"attachment-file-branded-sent-previewBox-background-(\w+)", "fillw:{1}"),
    (r"attachment-file-branded-sent-previewBox-icon", "on:doc"),
    (r"attachment-file-default-sent-previewBox-background", "tint:brand"),
    (r"attachment-file-default-sent-previewBox-icon", "tinttext:brand"),
    (r"attachment-file-error-sent-previewBox-background", "tint:red"),
    (r"attachment-file-error-sent-previewBox-icon", "tinttext:red"),
    (r"attachment-file-error-sent-border", "hline:red"),
    (r"attachment-file-preview-thumbnail-sent-background", "surf:2"),
    (r"attachment-file-preview-thumbnail-sent-overlay-background-normal", "scrim"),
    (r"attachment-file-preview-thumbnail-sent-overlay-label-primary", "onscrim:1"),
    (r"attachment-file-preview-thumbnail-sent-overlay-label-secondary", "onscrim:2"),
    (r"attachment-[\w-]+-sent-background", "surf:1"),
    (r"attachment-unfurl-background", "surf:1"),
    (r"attachment-unfurl-site-title", "text:1"),
    (r"attachment-unfurl-site-description", "text:2"),
    (r"attachment-unfurl-site-url", "htext:brand"),
    (r"attachment-[\w-]+-border", "line:subtle"),
    (r"attachment-[\w-]+-(label|text)-primary", "text:1"),
    (r"attachment-[\w-]+-(label|text)-secondary", "text:2"),
    (r"attachment-[\w-]+-label-disabled", "text:dis"),
    (r"attachment-[\w-]+-previewBox-icon", "text:2"),
    (r"content-file-(card|list)-item-border", "line:subtle"),
    (r"content-file-(card|list)-item-label-disabled", "text:dis"),
    (r"content-file-(card|list)-item-label-primary", "text:1"),
    (r"content-file-(card|list)-item-label-secondary", "text:2"),
    (r"content-file-(card|list)-item-overlay-background-normal", "scrim"),
    (r"content-file-(card|list)-item-previewBox-background", "surf:3"),
    (r"content-file-(card|list)-item-previewBox-icon", "text:2"),
    (r"content-file-list-item-background", "surf:0 +sel"),

    # avatars and presence
    (r"avatar-chat-bubble-border", "surfline:0"),
    (r"avatar-chat-bubble-icon-normal", "text:2"),
    (r"avatar-chat-bubble-icon-hover", "text:1"),
    (r"avatar-chat-bubble-icon-(pressed|active)", "htext:brand"),
    (r"avatar-chat-bubble-icon-disabled", "text:3"),
    (r"avatar-color-avatar-background-(\w+)", "avatar:{1}"),
    (r"avatar-color-avatar-text-default", "text:1"),
    (r"avatar-color-avatar-text-(\w+)", "tinttext:{1}"),
    (r"avatar-presence-icon-background", "surf:0"),
    (r"avatar-presence-icon-([\w-]+)", "htext:{1}"),

    # buttons
    (r"button-(primary|message-fill)-background", "fill:brand"),
    (r"button-(primary|message-fill)-border", "fillline:brand"),
    (r"button-(primary|message-fill)-text", "on:brand"),
    (r"button-accent-fill-background", "fill:cobalt"),
    (r"button-accent-fill-border", "fillline:cobalt"),
    (r"button-accent-fill-text", "on:cobalt"),
    (r"button-(cancel|join)-fill-background", "fill:{1}"),
    (r"button-(cancel|join)-fill-border", "fillline:{1}"),
    (r"button-(cancel|join)-fill-text", "on:{1}"),
    (r"button-join-animated-gradient-background-normal-0", "fill:green"),
    (r"button-join-animated-gradient-background-normal-1", "fill:mint"),
    (r"button-(cancel|join)-outline-background", "ghost"),
    (r"button-(cancel|join)-outline-border", "hline:{1}"),
    (r"button-(cancel|join)-(outline|ghost)-text", "htext:{1}"),
    (r"button-accent-ghost-text", "htext:cobalt"),
    (r"button-(message-ghost|hyperlink)-text", "htext:brand"),
    (r"button-(common-)?(ghost|secondary)-active-background", "tint:sel"),
    (r"button-(common-)?(ghost|secondary)-active-border", "hline:sel"),
    (r"button-(common-)?(ghost|secondary)-active-text", "tinttext:sel"),
    (r"button-(common-)?ghost-inverted-background", "scrim"),
    (r"button-(common-)?ghost-inverted-border", "scrimline"),
    (r"button-(common-)?ghost-inverted-text", "onscrim:1"),
    (r"button-[\w-]*(ghost|hyperlink)-background", "ghost"),
    (r"button-[\w-]*(ghost|hyperlink)-border", "ghostline"),
    (r"button-(common-)?ghost-text", "text:1"),
    (r"button-(common-)?secondary-background", "surf:0"),
    (r"button-(common-)?secondary-border", "line:strong"),
    (r"button-overlay-background", "scrim"),
    (r"button-overlay-border", "scrimline"),
    (r"button-overlay-text", "onscrim:1"),
    (r"button-dialpad-background", "surf:1"),
    (r"button-dialpad-special-background", "tint:brand"),
    (r"button-dialpad-special-text-\w+", "tinttext:brand"),
    (r"button-dialpad-text-number", "text:1"),
    (r"button-dialpad-text-characters", "text:2"),
    (r"button-group-separator-background", "line:div"),
    (r"button-(common|counter|layout|call-control-panel)-background", "surf:3"),
    (r"button-[\w-]+-border", "line:subtle"),
    (r"button-[\w-]+-text", "text:1"),

    # call history
    (r"call-history-item-ai-background", "tint:violet"),
    (r"call-history-item-ai-text", "tinttext:violet"),
    (r"call-history-item-background", "surf:0 +sel"),
    (r"call-history-item-(\w+)-indicator", "ind:{1}"),
    (r"call-history-item-missed-header-text", "htext:red"),
    (r"call-history-item-verification-icon", "htext:green"),
    (r"call-history-(item-(header|notes-header|notes)|text-primary)-text", "text:1"),
    (r"call-history-[\w-]+-(text|icon)", "text:2"),
    (r"cancelicon-default-icon", "text:2"),

    # cards, chips, tags
    (r"card-active-background", "tint:sel"),
    (r"card-cancelled-background", "surf:3"),
    (r"card-disabled-border", "line:subtle"),
    (r"card-inactive-background", "surf:1"),
    (r"card-success-background", "tint:green"),
    (r"card-transparent-background", "ghost"),
    (r"chips-background-error", "tint:red"),
    (r"chips-outline-error", "hline:red"),
    (r"chips-text-error", "tinttext:red"),
    (r"chips-outline-multiline-background", "surf:0"),
    (r"chips-outline-multiline-text-(\w+)", "htext:{1}"),
    (r"chips-outline-normal", "line:strong"),
    (r"multilineChip-unknown-outline", "line:strong"),
    (r"multilineChip-unknown-text", "text:2"),
    (r"multilineChip-(\w+)-outline", "hline:{1}"),
    (r"multilineChip-(\w+)-text", "htext:{1}"),
    (r"tags?-overlay-background", "scrim"),
    (r"tags?-overlay-border", "scrimline"),
    (r"tags?-overlay-text", "onscrim:1"),
    (r"tags?-static-background", "surf:3"),
    (r"tags?-static-border", "line:subtle"),
    (r"tags?-static-text", "text:1"),
    (r"tags?-(\w+)-background", "tint:{1}"),
    (r"tags?-(\w+)-border", "tintline:{1}"),
    (r"tags?-(\w+)-text", "tinttext:{1}"),
    (r"teamMarker-background-(\w+)", "fill:{1}"),

    # chat and messages
    (r"chat-new-message-newReplyBanner-background", "tint:brand"),
    (r"chat-new-message-\w+-text", "tinttext:brand"),
    (r"message-background", "surf:0"),
    (r"message-badge-important-background", "fill:red"),
    (r"message-badge-important-text", "on:red"),
    (r"message-badge-regular-background", "tint:brand"),
    (r"message-badge-regular-text", "tinttext:brand"),
    (r"message-(bodyText|headerText)-extParticipants-text", "htext:orange"),
    (r"message-bodyText-mention-all-text", "htext:cobalt"),
    (r"message-bodyText-mention-other-text", "htext:brand"),
    (r"message-bodyText-mention-self-text", "htext:violet"),
    (r"message-(bodyText-primary|headerText-default)-text", "text:1"),
    (r"message-(bodyText-secondary|forward)-text", "text:2"),
    (r"message-reactions-background", "surf:3"),
    (r"message-reactions-outline", "line:subtle"),
    (r"message-reactions-count-has-self-reaction", "htext:brand"),
    (r"message-reactions-details-contact-name", "text:1"),
    (r"message-reactions-details-presence", "ind:green"),
    (r"message-reactions-[\w-]+", "text:2"),
    (r"message-scheduled-header-background", "tint:cobalt"),
    (r"message-scheduled-header-border", "tintline:cobalt"),
    (r"message-scheduled-header-(icon|text)", "tinttext:cobalt"),
    (r"message-scheduled-header-link", "htext:brand"),
    (r"message-scheduled-message-alertBackground-normal", "tint:red"),
    (r"message-scheduled-message-alertBackground-hover", "tint:red ~1"),
    (r"message-scheduled-message-alertBackground-active", "tint:red ~2"),
    (r"message-scheduled-message-background", "surf:1"),
    (r"message-scheduled-message-footerText", "text:2"),
    (r"message-scheduled-message-(headerText|text)", "text:1"),
    (r"message-toolbar-background", "surf:0"),
    (r"message-toolbar-border", "line:subtle"),
    (r"message-toolbar-icon", "text:2"),
    (r"message-[\w-]*(iconalert|iconAlert|alertIcon|alertText)", "htext:red"),

    # checkbox, radio, toggles
    (r"(checkbox|radio)-checked-background", "tint:sel"),
    (r"(checkbox|radio)-checked-border", "hline:sel"),
    (r"(checkbox|radio)-checked-icon", "tinttext:sel"),
    (r"(checkbox|radio)-unchecked-background", "surf:0"),
    (r"(checkbox|radio)-unchecked-border", "line:strong"),
    (r"(checkbox|radio)-(un)?checked-text", "text:1"),
    (r"radio-group-description-color", "text:2"),
    (r"toggle-toggled-background", "fill:brand"),
    (r"toggle-toggled-border", "fillline:brand"),
    (r"toggle-toggled-thumb-tint", "on:brand"),
    (r"toggle-untoggled-background", "surf:0"),
    (r"toggle-untoggled-border", "line:strong"),
    (r"toggle-untoggled-thumb-tint", "text:2"),
    (r"toggleButton-active-background", "tint:sel"),
    (r"toggleButton-active-border", "hline:sel"),
    (r"toggleButton-active-text", "tinttext:sel"),
    (r"toggleButton-inactive-background", "surf:0"),
    (r"toggleButton-inactive-border", "line:strong"),
    (r"toggleButton-inactive-text", "text:1"),
    (r"toggleButtonAccent-active-background", "fill:brand"),
    (r"toggleButtonAccent-active-text", "on:brand"),
    (r"toggleButtonAccent-inactive-background", "ghost"),
    (r"toggleButtonAccent-inactive-text", "htext:brand"),
    (r"toggleButtonOverlay-active-background", "gray:0.97"),
    (r"toggleButtonOverlay-active-border", "gray:1.0"),
    (r"toggleButtonOverlay-active-text", "gray:0.22"),
    (r"toggleButtonOverlay-inactive-background", "scrim"),
    (r"toggleButtonOverlay-inactive-border", "scrimline"),
    (r"toggleButtonOverlay-inactive-text", "onscrim:1"),

    # menus, classifications, captions
    (r"classifications-menu-background", "surf:0"),
    (r"classifications-menu-border", "line:subtle"),
    (r"classifications-menu-right-icon", "text:2"),
    (r"classifications-menu-CLevel-color", "ind:red"),
    (r"classifications-menu-(\w+)-color", "ind:{1}"),
    (r"closedcaption-background-(dark|light)", "caption:{1}"),
    (r"closedcaption-button-dark-background", "gray:0.30"),
    (r"closedcaption-button-dark-border", "gray:0.50"),
    (r"closedcaption-button-dark-text", "gray:1.0"),
    (r"closedcaption-button-light-background", "gray:0.97"),
    (r"closedcaption-button-light-border", "gray:0.78"),
    (r"closedcaption-button-light-text", "gray:0.20"),
    (r"closedcaption-speaker-dark", "hue:gold:0.86"),
    (r"closedcaption-speaker-light", "hue:brand:0.45"),
    (r"closedcaption-text-dark", "gray:1.0"),
    (r"closedcaption-text-light", "gray:0.18"),

    # teaching and new features (purple)
    (r"coachmarkteaching-background", "fill:purple"),
    (r"coachmarkteaching-button-hyperlink-background", "fill:purple"),
    (r"coachmarkteaching-button-hyperlink-border", "fillline:purple"),
    (r"coachmarkteaching-button-hyperlink-text", "on:purple"),
    (r"coachmarkteaching-button-primary-background", "inv:purple"),
    (r"coachmarkteaching-button-primary-border", "invline:purple"),
    (r"coachmarkteaching-button-primary-text", "invtext:purple"),
    (r"coachmarkteaching-button-secondary-background", "fill:purple"),
    (r"coachmarkteaching-button-secondary-border", "invline:purple"),
    (r"coachmarkteaching-button-secondary-text", "on:purple"),
    (r"newFeature-badge(WithBorder)?-background", "fill:purple"),
    (r"newFeature-badge-border", "fillline:purple"),
    (r"newFeature-badgeWithBorder-border", "surfline:0"),
    (r"newFeature-badge-text", "on:purple"),
    (r"newFeature-(banner|tag)-background", "tint:purple"),
    (r"newFeature-tag-border", "tintline:purple"),
    (r"newFeature-banner-text", "text:1"),
    (r"newFeature-banner-\w+", "tinttext:purple"),

    # inputs
    (r"(codeinput|textinput|combobox|kv-orbis-combobox)-background", "surf:0"),
    (r"(codeinput|textinput|combobox|kv-orbis-combobox)-border", "line:strong"),
    (r"(codeinput|textinput|combobox|kv-orbis-combobox)-text", "text:1"),
    (r"(codeinput|textinput)-error-background", "tint:red"),
    (r"(codeinput|textinput)-error-border", "hline:red"),
    (r"(codeinput|textinput)-error-text", "tinttext:red"),
    (r"(textinput|combobox)-placeholder-text", "text:3"),
    (r"combobox-icon", "text:2"),
    (r"kv-orbis-combobox-dropdown-arrow", "text:2"),
    (r"search-background", "surf:2"),
    (r"search-border", "line:subtle"),
    (r"search-placeholder-text", "text:3"),
    (r"search-text", "text:1"),
    (r"shortcutinput-inactive-background", "surf:0"),
    (r"shortcutinput-inactive-border", "line:strong"),
    (r"shortcutinput-inactive-text", "text:2"),
    (r"shortcutinput-inactive-textBackground", "surf:3"),
    (r"shortcutinput-active-(\w+)-background", "tint:{1}"),
    (r"shortcutinput-active-(\w+)-border", "hline:{1}"),
    (r"shortcutinput-active-(\w+)-text", "tinttext:{1}"),
    (r"shortcutinput-active-\w+-textBackground", "surf:0"),
    (r"image-selector-background", "surf:0"),
    (r"image-selector-border-active", "hline:sel"),
    (r"image-selector-border-inactive", "line:subtle"),
    (r"image-selector-checkboard-background-(\d)", "n:check{1}"),
    (r"image-selector-text", "text:1"),
    (r"pickers-datePicker-date-background", "ghost +sel"),
    (r"pickers-datePicker-date-border", "ghostline"),
    (r"pickers-datePicker-date-text", "text:1 +sel"),
    (r"pickers-datePicker-date-unreadBadge", "ind:brand"),
    (r"pickers-datePicker-month-text", "text:1"),
    (r"pickers-datePicker-weekDay-text", "text:2"),
    (r"pickers-dayPicker-day-active-background", "fill:sel"),
    (r"pickers-dayPicker-day-active-border", "fillline:sel"),
    (r"pickers-dayPicker-day-active-text", "on:sel"),
    (r"pickers-dayPicker-day-inactive-background", "surf:0"),
    (r"pickers-dayPicker-day-inactive-border", "line:subtle"),
    (r"pickers-dayPicker-day-inactive-text", "text:1"),
    (r"slider-handle-background", "fill:brand"),
    (r"slider-handle-border", "surfline:0"),
    (r"slider-track-buffer-background", "n:buffer +graphic"),
    (r"slider-track-empty-background", "n:track +graphic"),
    (r"slider-track-indicator-background", "fill:brand +graphic:strong"),

    # header, lists, navigation
    (r"globalHeader-container-background", "surf:1"),
    (r"globalHeader-closeButton-background", "ghost:red"),
    (r"globalHeader-modifierChip-background", "surf:3"),
    (r"globalHeader-textfield-background", "surf:0"),
    (r"globalHeader-textfieldWin-background", "surf:0"),
    (r"globalHeader-textfield-border", "line:subtle"),
    (r"globalHeader-textfield-borderModifier", "hline:brand"),
    (r"globalHeader-searchCancelButton-border", "ghostline"),
    (r"globalHeader-\w+-background", "ghost"),
    (r"globalHeader-closeButton-text", "text:2 +hot:red"),
    (r"globalHeader-buttonDevice-text-active", "htext:brand"),
    (r"globalHeader-(buttonStatus|modifierChip|textfield)-text", "text:1"),
    (r"globalHeader-textfieldPlaceholderText-text", "text:3"),
    (r"globalHeader-[\w-]+", "text:2"),
    (r"hyperlink-(\w+)-text", "htext:{1}"),
    (r"indentationBar-default", "line:strong"),
    (r"indentationBar-(\w+)", "ind:{1}"),
    (r"interactiveicon-container-background", "ghost"),
    (r"interactiveicon-primary-\w+-icon-active", "htext:brand"),
    (r"interactiveicon-quaternary-filled-icon-active", "htext:red"),
    (r"interactiveicon-tertiary-filled-favorite-icon-active", "htext:gold"),
    (r"interactiveicon-secondary-filled-icon-active", "text:1"),
    (r"interactiveicon-[\w-]+-inactive", "text:2"),
    (r"label-common-black-text", "gray:0.20"),
    (r"label-common-white-text", "gray:1.0"),
    (r"label-common-gray-text", "text:2"),
    (r"label-common-disabled-text", "text:dis"),
    (r"label-(common-inverted-primary|primaryInverted)-text", "invtext:1"),
    (r"label-(common-inverted-secondary|secondaryInverted)-text", "invtext:2"),
    (r"label-(common-)?(error|success|warning)-text", "htext:{2}"),
    (r"label-primary-text", "text:1"),
    (r"label-secondary-text", "text:2"),
    (r"list-header-outline-primary", "line:strong"),
    (r"list-header-outline-secondary", "line:subtle"),
    (r"listitem-background", "surf:0 +sel"),
    (r"listitem-dotdivider", "text:3"),
    (r"listitem-icon", "text:2"),
    (r"listitem-textmissed", "htext:red"),
    (r"listitem-textprimary", "text:1"),
    (r"listitem-textsecondary(company)?", "text:2"),
    (r"listitem-tick", "htext:sel"),
    (r"navigation-bar-divider-0", "line:subtle"),
    (r"navigation-bar-divider-1", "line:div"),
    (r"navigationtab-background", "ghost +sel"),
    (r"navigationtab-text", "text:2 +sel"),
    (r"paginationdot-active-default-background", "fill:brand"),
    (r"paginationdot-inactive-default-background", "n:strong"),
    (r"paginationdot-active-inverted-background", "gray:1.0"),
    (r"paginationdot-inactive-inverted-background", "gray:0.62"),
    (r"participantListItem-audioMuted", "htext:red"),
    (r"participantListItem-audioUnmuted", "text:2"),
    (r"scrollbar-arrow-button-background", "ghost"),
    (r"scrollbar-arrow-button-text", "text:2"),
    (r"scrollbar-thumb-background", "n:thumb"),
    (r"scrollbar-track-background", "surf:1"),
    (r"tab-active-background", "tint:sel"),
    (r"tab-active-text", "tinttext:sel"),
    (r"tab-inactive-background", "ghost"),
    (r"tab-inactive-text", "text:2"),
    (r"tab-(\w+)", "ind:{1}"),
    (r"themethumbnail-border", "line:subtle +sel"),
    (r"themethumbnail-text", "text:1"),

    # meetings, calls, sharing
    (r"meeting-associated-space-background", "surf:1"),
    (r"meeting-associated-space-primary-text", "text:1"),
    (r"meeting-associated-space-secondary-text", "text:2"),
    (r"meeting-associated-space-separator", "line:div"),
    (r"meetingCardListItem-background", "surf:0"),
    (r"meetingCardListItem-border", "line:subtle"),
    (r"meetingCardListItem-textPrimary", "text:1"),
    (r"meetingCardListItem-textSecondary", "text:2"),
    (r"meetingRecording-indicator-(\w+)", "ind:{1}"),
    (r"meetingmarker-active-background", "fill:brand"),
    (r"meetingmarker-default-background", "tint:brand"),
    (r"meetingmarker-inactive-background", "surf:3"),
    (r"scheduledmeetingItem-background", "surf:0 +sel"),
    (r"pickup-notification-from-text-color", "text:2"),
    (r"pickup-notification-[\w-]+-text-color", "text:1"),
    (r"sharewindow-border-active", "hline:green"),
    (r"sharewindow-border-inactive", "line:strong"),
    (r"sharewindow-border-selected", "hline:sel"),
    (r"sharewindow-control-button-active-background", "fill:red"),
    (r"sharewindow-control-button-active-border", "fillline:red"),
    (r"sharewindow-control-button-active-text", "on:red"),
    (r"sharewindow-control-button-primary-background", "fill:brand"),
    (r"sharewindow-control-button-primary-border", "fillline:brand"),
    (r"sharewindow-control-button-primary-text", "on:brand"),
    (r"sharewindow-control-button-secondary-background", "toast"),
    (r"sharewindow-control-button-secondary-border", "toastline"),
    (r"sharewindow-control-button-secondary-text", "ontoast:1"),
    (r"sharewindow-control-dragger-inactive", "ontoast:2"),
    (r"sharewindow-control-dragger-primary", "ontoast:1"),
    (r"sharewindow-control-text-inactive", "on:red"),
    (r"sharewindow-control-text-primary", "on:brand"),
    (r"sharewindow-(preview|viewwindow)-active", "hline:sel"),
    (r"sharewindow-viewwindow-hovered", "hline:sel ~1"),
    (r"sharewindow-viewwindow-selected", "hline:sel ~2"),
    (r"sharewindow-preview-inactive", "line:subtle"),
    (r"touchbar-(call|endCall)-background", "fill:{1}"),
    (r"touchbar-lockActive-background", "fill:brand"),
    (r"touchbar-(call|endCall)-icon", "on:{1}"),
    (r"touchbar-lockActive-icon", "on:brand"),
    (r"touchbar-\w+-background", "toast"),
    (r"touchbar-\w+-icon", "ontoast:1"),
    (r"videoSupport-container(Solid)?Background", "n:video"),
    (r"videoSupport-controls-button-background", "scrim"),
    (r"videoSupport-controls-button-border", "scrimline"),
    (r"videoSupport-controls-button-(icon|text)", "onscrim:1"),
    (r"videoSupport-videoNameLabels-advanced-primary-background", "scrim"),
    (r"videoSupport-videoNameLabels-advanced-primary-border", "scrimline"),
    (r"videoSupport-videoNameLabels-advanced-secondary-background", "fade:0"),
    (r"videoSupport-videoNameLabels-advanced-secondary-titleText", "text:1"),
    (r"videoSupport-videoNameLabels-advanced-secondary-subTitleText", "text:2"),
    (r"videoSupport-videoNameLabels-advanced-primaryInverted-thumbnail", "surf:3"),
    (r"videoSupport-videoNameLabels-advanced-\w+-titleText", "onscrim:1"),
    (r"videoSupport-videoNameLabels-advanced-\w+-subTitleText", "onscrim:2"),
    (r"videoSupport-videoNameLabels-videoOff-background", "surf:3"),
    (r"videoSupport-videoNameLabels-videoOff-iconMute", "htext:red"),
    (r"videoSupport-videoNameLabels-videoOff-name", "text:1"),
    (r"videoSupport-videoNameLabels-videoOff-\w+", "text:2"),
    (r"videoSupport-videoNameLabels-videoOn-background", "scrim"),
    (r"videoSupport-videoNameLabels-videoOn-iconMute", "scrimhue:red"),
    (r"videoSupport-videoNameLabels-videoOn-role", "onscrim:2"),
    (r"videoSupport-videoNameLabels-videoOn-\w+", "onscrim:1"),

    # remaining surfaces, fades, gradients, spinners
    (r"compose-area-divider-announce-0", "hline:purple"),
    (r"compose-area-divider-announce-1", "hline:violet"),
    (r"compose-area-divider-default-0", "line:subtle"),
    (r"compose-area-divider-default-1", "line:div"),
    (r"compose-area-divider-error-0", "hline:red"),
    (r"compose-area-divider-error-1", "hline:orange"),
    (r"compose-area-divider-warn-0", "hline:amber"),
    (r"compose-area-divider-warn-1", "hline:gold"),
    (r"dualbutton-overlay(-button)?-background", "scrim"),
    (r"dualbutton-overlay-border", "scrimline"),
    (r"dualbutton-overlay-button-text", "onscrim:1"),
    (r"dualbutton-standard-background", "surf:0"),
    (r"dualbutton-standard-border", "line:strong"),
    (r"dualbutton-standard-button-background", "ghost"),
    (r"dualbutton-standard-button-text", "text:1"),
    (r"notificationToast-background", "surf:0"),
    (r"notificationToast-border", "line:subtle"),
    (r"notificationToast-text", "text:1"),
    (r"textToast-background", "toast"),
    (r"textToast-border", "toastline"),
    (r"textToast-text", "ontoast:1"),
    (r"textToastButton-incomingCall-decline-text", "toasthue:red"),
    (r"overlayFade-(meetings-background|meetings-reactions-gradient-0)", "scrim"),
    (r"overlayFade-meetings-reactions-gradient-1", "scrim0"),
    (r"overlayFade-primary-background-normal", "fade:0"),
    (r"overlayFade-secondary-background-normal", "fade:1"),
    (r"reaction-background-gradient-0", "tint:amber"),
    (r"reaction-background-gradient-1", "tint:pink"),
    (r"reaction-badge-primary-background", "surf:3"),
    (r"reaction-badge-primary-border", "line:subtle"),
    (r"reaction-badge-primary-reacted-text", "htext:brand"),
    (r"reaction-badge-primary-unreacted-text", "text:2"),
    (r"space-bricklet-background", "surf:1 +sel"),
    (r"space-bricklet-title-unread-text", "text:1"),
    (r"space-bricklet-[\w-]+", "text:2"),
    (r"spinner-[\w-]+-cursor", "ind:brand"),
    (r"spinner-[\w-]+-track", "n:track"),
    (r"theme-gradient-dialog-secondary-0-background", "surf:0"),
    (r"theme-gradient-dialog-secondary-1-background", "surf:1"),
    (r"theme-gradient-primary-0-background", "tint:brand"),
    (r"theme-gradient-primary-1-background", "tint:violet"),
    (r"theme-gradient-secondary-0-background", "tint:cyan"),
    (r"theme-gradient-secondary-1-background", "tint:mint"),
    (r"welcomeCard-background", "tint:brand"),
    (r"welcomeCard-titleText", "text:1"),
    (r"welcomeCard-descriptionText", "text:2"),
]
_COMPILED = [(re.compile(p), recipe) for p, recipe in RULES]


def classify(name):
    for rx, recipe in _COMPILED:
        m = rx.fullmatch(name)
        if m:
            recipe = re.sub(r"\{(\d)\}", lambda g: m.group(int(g.group(1))), recipe)
            parts = recipe.split()
            role, _, arg = parts[0].partition(":")
            flags = set(parts[1:])
            return role, arg, flags
    return None


# --------------------------------------------------------------------------
# Role -> normal colour, and the category whose state rules apply.

FG_ROLES = {"text", "htext", "tinttext", "on", "onhue", "onscrim", "ontoast", "toasthue",
            "scrimhue", "invtext"}
LINE_ROLES = {"line", "hline", "tintline", "fillline", "surfline", "scrimline", "toastline",
              "invline", "ind"}
BORDER_ROLES = LINE_ROLES - {"ind"}


def normal_color(T, role, arg, name):
    hc = T["hc"]
    if role == "surf":
        return nl(T, "surf" + arg)
    if role == "surfline":
        return nl(T, "surf" + arg)
    if role == "n":
        return nl(T, arg)
    if role == "gray":
        return gray(float(arg))
    if role == "hue":
        hue, L = arg.split(":")
        return tone(T, hue_of(hue), T["bright"] if hc else float(L))
    if role in ("fill", "fillline"):
        return fill_color(T, hue_of(arg))
    if role == "fillw":
        return fill_color(T, hue_of(arg), forceWhiteText=True)
    if role == "on":
        return on_color(T, fill_color(T, hue_of(arg), forceWhiteText=name.startswith("attachment-")))
    if role == "onhue":
        return BLACK if hc else tone(T, hue_of(arg), *T["onhue"])
    if role in ("inv", "invline"):
        return on_color(T, fill_color(T, hue_of(arg)))
    if role == "invtext" and arg in ("1", "2"):
        return nl(T, "inv" + arg)
    if role == "invtext":
        return fill_color(T, hue_of(arg))
    if role == "tint":
        return tone(T, hue_of(arg), *T["tint"])
    if role == "tintline":
        return tone(T, hue_of(arg), *T["tintLine"])
    if role == "tinttext":
        return tone(T, hue_of(arg), T["tintText"])
    if role == "htext":
        return tone(T, hue_of(arg), T["htext"])
    if role == "hline":
        return tone(T, hue_of(arg), T["hline"])
    if role == "ind":
        return tone(T, hue_of(arg), T["ind"])
    if role == "avatar":
        L, C = T["avatar"]
        if arg == "default":
            return tone(T, "slate", L, 0.035)
        return tone(T, hue_of(arg), L, C)
    if role == "text":
        if arg == "dis":
            return gray(T["disabledText"]) if hc else with_alpha(nl(T, "text1"), 255 * T["fadeText"])
        return nl(T, "text" + arg)
    if role == "line":
        return nl(T, arg)
    if role == "ghost":
        return CLEAR if hc else with_alpha(T["ghost"][0], 0)
    if role == "ghostline":
        return with_alpha(nl(T, "subtle"), 0)
    if role == "scrim":
        return scrim(T)
    if role == "scrim0":
        return CLEAR
    if role == "scrimline":
        return WHITE if hc else (255, 255, 255, 89)  # 35 %
    if role == "onscrim":
        return WHITE if arg == "1" else gray(0.93 if hc else 0.88)
    if role == "scrimhue":
        return tone(T, hue_of(arg), T["bright"])
    if role == "fade":
        return with_alpha(nl(T, "surf" + arg), 230)
    if role in ("toast", "toastline"):
        return nl(T, role)
    if role == "ontoast":
        return nl(T, "ontoast" + arg)
    if role == "toasthue":
        return tone(T, hue_of(arg), T["bright"])
    if role == "caption":
        if arg == "dark":
            return BLACK if hc else (0, 0, 0, 204)
        return WHITE if hc else (255, 255, 255, 235)
    if role == "focus":
        return tone(T, "brand", T["hline"]) if not hc else WHITE
    if role == "clear":
        return CLEAR
    raise ValueError("unknown role %s:%s for %s" % (role, arg, name))


def category(role, name):
    if role in FG_ROLES:
        return "fg"
    if role in LINE_ROLES:
        return "line"
    if role in ("ghost", "ghostline", "focus", "clear"):
        return role
    if role in ("gray", "n", "hue"):
        return "bg" if is_bg(name) else "fg" if is_fg(name) else "line"
    return "bg"


# --------------------------------------------------------------------------
# State rules.


def shift(T, col, steps, fg=False):
    """Moves a colour `steps` emphasis steps: darker in light, lighter in dark."""
    if steps == 0:
        return col
    if col[3] < 255 and not fg:
        # translucent fills (scrims, fades) get denser instead
        return with_alpha(col, min(255, col[3] + 20 * steps))
    L, C, h = to_oklch(col)
    if T["hc"] and not fg and L > 0.6:
        # bright high-contrast fills: hover goes paler, press deeper, so
        # both stay far from black text and from each other
        if steps == 1:
            return from_oklch(L + (1 - L) * 0.6, C * 0.6, h, col[3])
        return from_oklch(L - 0.12, C, h, col[3])
    if fg:
        d = +1 if L > 0.6 else -1
    else:
        d = T["flip"](L)
    step = (T["up"] if d > 0 else T["down"])[steps - 1]
    if fg and T["hc"]:
        step = 0.06 * steps
    return from_oklch(L + d * step, C, h, col[3])


def disabled_bg(T, col):
    if T["hc"]:
        return with_alpha(col, col[3] // 2) if col[3] < 255 else nl(T, "surf0")
    L, C, h = to_oklch(col)
    alpha = col[3] if col[3] == 255 else col[3] // 2
    return from_oklch(L + (T["disabledL"] - L) * 0.5, C * 0.25, h, alpha)


def selection_bg(T):
    return fill_color(T, "sel") if T["hc"] else tone(T, "sel", *(
        (0.92, 0.05) if not T["dark"] else (0.36, 0.08)))


def is_yellowish(col):
    L, C, h = to_oklch(col)
    return C > 0.1 and 80 < h < 130


def derive_states(T, name, role, arg, flags, col):
    cat = category(role, name)
    hc = T["hc"]
    sel = "+sel" in flags
    if cat == "clear":
        return [CLEAR] * 6
    if cat == "focus":
        ring = tone(T, "brand", T["hline"] - 0.1 if not T["dark"] else T["hline"] + 0.1) \
            if not hc else fill_color(T, "sel")
        dis = with_alpha(col, 100) if not hc else gray(T["disabledLine"])
        return [col, col, col, dis, ring, col]
    if cat == "ghost":
        if role == "ghost" and arg:  # danger ghost: the hue on hover
            f = fill_color(T, hue_of(arg))
            return [col, f, shift(T, f, 2), col, col, shift(T, f, 2)]
        if hc:
            hov, prs = gray(0.30), gray(0.40)
        else:
            hov, prs = T["ghost"]
        return [col, hov, prs, col, col, selection_bg(T) if sel else prs]
    if cat == "ghostline":
        if hc:
            hov, prs = fill_color(T, "brand"), fill_color(T, "sel")
        else:
            hov, prs = nl(T, "subtle"), nl(T, "strong")
        return [col, hov, prs, col, col, prs]
    if cat == "bg":
        hov, prs = shift(T, col, 1), shift(T, col, 2)
        chk = selection_bg(T) if sel else prs
        dis = disabled_bg(T, col)
        if hc and "+graphic" in flags:
            dis = gray(T["disabledLine"])
        elif hc and "+graphic:strong" in flags:
            dis = gray(T["disabledText"])
        return [col, hov, prs, dis, col, chk]
    if cat == "line":
        if hc and role in BORDER_ROLES:
            hov = WHITE if is_yellowish(col) else fill_color(T, "brand")
            prs = fill_color(T, "sel")
            chk = prs
            dis = gray(T["disabledLine"])
        else:
            hov, prs = shift(T, col, 1), shift(T, col, 2)
            chk = tone(T, "sel", T["hline"]) if sel else prs
            dis = gray(T["disabledLine"]) if hc else with_alpha(col, col[3] * T["fadeLine"])
        return [col, hov, prs, dis, col, chk]
    # foreground
    hov, prs = shift(T, col, 1, fg=True), shift(T, col, 2, fg=True)
    chk = tone(T, "sel", T["htext"]) if sel and not hc else prs
    hot = [f[5:] for f in flags if f.startswith("+hot:")]
    if hot:  # sits on a ghost that fills with a hue when active
        hov = prs = chk = on_color(T, fill_color(T, hue_of(hot[0])))
    dis = gray(T["disabledText"]) if hc else with_alpha(col, col[3] * T["fadeText"])
    if role == "text" and arg == "dis":  # already the disabled look
        dis = col
    return [col, hov, prs, dis, col, chk]


# --------------------------------------------------------------------------
# Contrast.


def adjust(fg, bg, target, snap=False):
    """Moves `fg` in lightness (hue kept) until it reaches `target` over the
    opaque `bg`; returns (colour, met). With `snap` the move goes all the way
    to black or white (high contrast wants no in-between greys)."""
    if contrast(compose(fg, bg), bg) >= target:
        return fg, True
    if snap:
        for c in sorted((BLACK, WHITE), key=lambda c: -contrast(c, bg)):
            if contrast(c, bg) >= target:
                return c, True
    L, C, h = to_oklch(fg)
    for alpha in ((fg[3], 255) if fg[3] < 255 else (255,)):
        best = None
        for d in (+1, -1):
            for i in range(1, 501):
                L2 = L + d * i * 0.002
                if L2 < 0 or L2 > 1:
                    break
                c = from_oklch(L2, C, h, alpha)
                if contrast(compose(c, bg), bg) >= target:
                    if best is None or i < best[0]:
                        best = (i, c)
                    break
        if best:
            return best[1], True
    cands = [from_oklch(0, 0, 0), from_oklch(1, 0, 0)]
    return max(cands, key=lambda c: contrast(c, bg)), False


def opaque_bg(sets, bgname, state=N):
    bg = sets[bgname][state]
    if bg[3] < 255:
        bg = compose(bg, sets[SURFACE][N])
    return bg


def generate(T, names, verbose=False):
    problems = []
    recipes = {}
    for n in names:
        c = classify(n)
        if c is None:
            problems.append("missing %s: no rule matches it" % n)
            continue
        recipes[n] = c
    if problems:
        return None, problems

    normal = {}
    for n, (role, arg, flags) in recipes.items():
        col = normal_color(T, role, arg, n)
        for f in flags:
            if f.startswith("~"):
                col = shift(T, col, int(f[1:]))
        normal[n] = col

    pairs = [(f, pair(f, names)) for f in names if is_fg(f)]
    pairs = [(f, b) for f, b in pairs if b]
    target = T["req"] + MARGIN
    if normal[SURFACE][3] != 255:
        problems.append("%s must be opaque" % SURFACE)
    surface = normal[SURFACE]
    adjusted = []
    for f, b in pairs:
        bg = normal[b] if normal[b][3] == 255 else compose(normal[b], surface)
        new, ok = adjust(normal[f], bg, target, snap=T["hc"])
        if not ok:
            problems.append("%s on %s cannot reach %.1f" % (f, b, target))
        if new != normal[f]:
            adjusted.append((f, normal[f], new))
            normal[f] = new

    sets = {}
    for n, (role, arg, flags) in recipes.items():
        sets[n] = derive_states(T, n, role, arg, flags, normal[n])

    # Keep text readable in the passing states too: 3:1 (the large-text
    # minimum) so that a hovered fill does not flip its label from white to
    # black; high contrast keeps its full ratio everywhere.
    state_target = target if T["hc"] else STATE_RATIO
    for f, b in pairs:
        for s in (HOV, PRS, FOC, CHK):
            bg = opaque_bg(sets, b, s)
            sets[f][s], _ = adjust(sets[f][s], bg, state_target, snap=T["hc"])

    if T["hc"]:
        for n, (role, arg, flags) in recipes.items():
            if category(role, n) == "fg" and any(c[3] != 255 for c in sets[n]):
                problems.append("translucent text in high contrast: %s" % n)

    ratios = []
    for f, b in pairs:
        bg = opaque_bg(sets, b)
        r = contrast(compose(sets[f][N], bg), bg)
        ratios.append((r, f, b))
        if r < T["req"]:
            problems.append("%s on %s: %.2f" % (f, b, r))
    ratios.sort()
    if verbose:
        for f, old, new in adjusted:
            print("  adjusted %-62s %s -> %s" % (f, hexcol(old), hexcol(new)))
    return dict(sets=sets, ratios=ratios, adjusted=adjusted), problems


def to_json(T, sets):
    lines = ["{",
             '  "name": "%s",' % T["id"],
             '  "highContrast": %s,' % ("true" if T["hc"] else "false"),
             '  "dark": %s,' % ("true" if T["dark"] else "false"),
             '  "colorSets": {']
    keys = sorted(sets, key=lambda k: k.encode())
    for i, k in enumerate(keys):
        cols = ", ".join('"%s"' % hexcol(c) for c in sets[k])
        lines.append('    "%s": [%s]%s' % (k, cols, "," if i + 1 < len(keys) else ""))
    lines += ["  }", "}", ""]
    return "\n".join(lines)


def palette_markdown():
    out = []
    for T in THEMES.values():
        out.append("### %s\n" % T["id"])
        out.append("| Neutral | Use | Colour |")
        out.append("|---|---|---|")
        for k, use in (("surf0", "primary surface"), ("surf1", "secondary surface"),
                       ("surf2", "tertiary surface"), ("surf3", "quiet fill"),
                       ("text1", "primary text"), ("text2", "secondary text"),
                       ("text3", "placeholder text"), ("strong", "strong border"),
                       ("subtle", "subtle border"), ("div", "divider"), ("toast", "toast strip")):
            out.append("| %s | %s | `%s` |" % (k, use, hexcol(nl(T, k))))
        out.append("")
        out.append("| Hue | Fill | Tint | Tint text | Text | Line | Indicator |")
        out.append("|---|---|---|---|---|---|---|")
        for h in ["brand", "sel"] + [h for h in HUES if h not in ("neutral", "brand") and not h.startswith("hc")]:
            out.append("| %s | `%s` | `%s` | `%s` | `%s` | `%s` | `%s` |" % (
                h + (" → " + resolve_hue(T, h) if resolve_hue(T, h) != h else ""),
                hexcol(fill_color(T, h)), hexcol(tone(T, h, *T["tint"])),
                hexcol(tone(T, h, T["tintText"])), hexcol(tone(T, h, T["htext"])),
                hexcol(tone(T, h, T["hline"])), hexcol(tone(T, h, T["ind"]))))
        out.append("")
    return "\n".join(out)


def read_names(path):
    with open(path, encoding="utf-8") as fh:
        return [l.strip() for l in fh if l.strip() and not l.startswith("#")]


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--check", action="store_true", help="generate and check, write nothing")
    ap.add_argument("--palette", action="store_true", help="print the base colours as Markdown")
    ap.add_argument("--out", default=OUT_DIR, help="output directory")
    ap.add_argument("-v", "--verbose", action="store_true")
    args = ap.parse_args()
    if args.palette:
        print(palette_markdown())
        return 0

    names = read_names(TOKENS) + read_names(EXTRA)
    dupes = sorted({n for n in names if names.count(n) > 1})
    failed = bool(dupes)
    for d in dupes:
        print("error: duplicate name %s" % d, file=sys.stderr)
    names = sorted(set(names), key=lambda k: k.encode())

    for T in THEMES.values():
        result, problems = generate(T, names, args.verbose)
        if result:
            missing = [n for n in names if n not in result["sets"]]
            problems += ["missing %s" % n for n in missing]
        for p in problems:
            print("error: %s: %s" % (T["id"], p), file=sys.stderr)
        if problems:
            failed = True
            continue
        r, f, b = result["ratios"][0]
        print("%-13s %d sets, %d pairs (need %.1f), %d foregrounds adjusted; worst: %s on %s = %.2f"
              % (T["id"], len(result["sets"]), len(result["ratios"]), T["req"],
                 len(result["adjusted"]), f, b, r))
        if not args.check:
            os.makedirs(args.out, exist_ok=True)
            with open(os.path.join(args.out, T["file"]), "w", encoding="utf-8", newline="\n") as fh:
                fh.write(to_json(T, result["sets"]))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
