"""Prints a registry file that gives Wine the look of a current Windows: its colours, its sizes and
fonts at so many dots per inch, and smooth letters. Usage: current_look.py DPI usual|large"""

import sys

# The letters of Debian's fonts-clear-sans are the nearest to those of Windows. At 11 pixels they are
# as high as those of Windows at 12, and their lines are, too. Wine enlarges them with the dots.
FONT = "Clear Sans"
PIXELS = 11

COLORS = {
    "Background": (62, 97, 128),
    "AppWorkSpace": (171, 171, 171),
    "ButtonFace": (243, 243, 243),
    "ButtonAlternateFace": (243, 243, 243),
    "ButtonHilight": (243, 243, 243),
    "ButtonLight": (205, 205, 205),
    "ButtonShadow": (214, 214, 214),
    "ButtonDkShadow": (205, 205, 205),
    "ButtonText": (0, 0, 0),
    "GrayText": (109, 109, 109),
    "ActiveTitle": (243, 243, 243),
    "GradientActiveTitle": (243, 243, 243),
    "TitleText": (0, 0, 0),
    "InactiveTitle": (243, 243, 243),
    "GradientInactiveTitle": (243, 243, 243),
    "InactiveTitleText": (138, 138, 138),
    "ActiveBorder": (243, 243, 243),
    "InactiveBorder": (243, 243, 243),
    "Hilight": (0, 103, 192),
    "HilightText": (255, 255, 255),
    "MenuHilight": (229, 229, 229),
    "Menu": (249, 249, 249),
    "MenuBar": (249, 249, 249),
    "WindowFrame": (205, 205, 205),
    "InfoWindow": (249, 249, 249),
}


def string(name, value):
    return f'"{name}"="{value}"'


def number(name, value):
    return f'"{name}"=dword:{value:08x}'


def data(name, value):
    return f'"{name}"=hex:' + ",".join(f"{byte:02x}" for byte in value)


def font(pixels):
    """A LOGFONTW."""
    words = (-pixels, 0, 0, 0, 400)
    numbers = b"".join(word.to_bytes(4, "little", signed=True) for word in words)
    return numbers + bytes((0, 0, 0, 1, 0, 0, 0, 0)) + FONT.encode("utf-16-le").ljust(64, b"\0")


def twips(pixels):
    """How the registry holds a length that grows with the dots per inch."""
    return str(-15 * pixels)


def keys(dpi, large):
    yield r"Control Panel\Colors", [
        string(name, " ".join(map(str, color))) for name, color in COLORS.items()
    ]
    yield r"Control Panel\Desktop", [
        number("LogPixels", dpi),
        string("FontSmoothing", "2"),
        number("FontSmoothingType", 1),
        number("FontSmoothingGamma", 1400),
    ]
    caption, menu = (36, 34) if large else (28, 22)
    # Wine paints nothing on the padding of borders: it stays black, in every program.
    sizes = {
        "CaptionHeight": caption, "CaptionWidth": caption, "MenuHeight": menu, "MenuWidth": menu,
        "SmCaptionHeight": caption, "SmCaptionWidth": caption,
        "PaddedBorderWidth": 4 if large else 0,
    }  # fmt: skip
    yield r"Control Panel\Desktop\WindowMetrics", [
        *(string(name, twips(pixels)) for name, pixels in sizes.items()),
        *(
            data(f"{name}Font", font(PIXELS))
            for name in ("Caption", "SmCaption", "Menu", "Message", "Status", "Icon")
        ),
    ]
    yield r"Software\Microsoft\Notepad", [number("iPointSize", 100 * dpi // 96)]
    yield r"Software\Wine\Fonts", [number("LogPixels", dpi)]
    yield r"Software\Wine\Fonts\Replacements", [
        string(name, FONT) for name in ("Segoe UI", "MS Shell Dlg", "MS Shell Dlg 2", "Tahoma")
    ]


print("Windows Registry Editor Version 5.00")
for key, values in keys(int(sys.argv[1]), sys.argv[2] == "large"):
    print(f"\n[HKEY_CURRENT_USER\\{key}]", *values, sep="\n")
