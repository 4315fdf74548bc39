#!/usr/bin/env python3
"""The primary rainbow of a water drop: Mie theory beside the one Debye term that makes it, and where each has its bow.

    rainbow.py [RADIUS_UM [PICTURE.png]]

Prints the angle of the main bow and of its first supernumerary; with matplotlib (python3-matplotlib) it draws the curves as
well.
"""

import sys

import lumivex


def curve(radius, method, lines=""):
    """Scattering angles, and the intensity of light that is polarised perpendicular to the plane of scattering."""
    answers = lumivex.run(f"""
        choose cboType {method}
        {lines}
        set txtRadius {radius}
        set txtXmin 136
        set txtXmax 146
        set cboStep 0.01
        click cmdNewPlot
        table
    """)
    table = answers.table()
    return table["x"], table["perpendicular"]


def maxima(x, y):
    """The local maxima, the highest of neighbours, as pairs of angle and intensity."""
    return [(x[i], y[i]) for i in range(1, len(y) - 1) if y[i - 1] < y[i] >= y[i + 1]]


def draw(path, curves):
    """The curves as a picture; without matplotlib says so."""
    try:
        import matplotlib

        matplotlib.use("Agg")
        from matplotlib import pyplot
    except ImportError:
        print("there is no picture: matplotlib is not installed")
        return
    _, axes = pyplot.subplots(figsize=(9, 5))
    for name, (x, y) in curves.items():
        axes.semilogy(x, y, label=name, linewidth=1)
    axes.set_xlabel("Scattering angle (degrees)")
    axes.set_ylabel("Intensity, perpendicular polarisation")
    axes.legend()
    pyplot.savefig(path, dpi=120, bbox_inches="tight")
    print("drawn:", path)


def main():
    radius = float(sys.argv[1]) if len(sys.argv) > 1 else 100
    curves = {"Mie": curve(radius, "Mie"), "Debye p = 2": curve(radius, "Debye", "set cboRays 2")}
    # Of Mie the bow carries the fine ripples of reflected light; of the Debye term alone it is smooth.
    bows = maxima(*curves["Debye p = 2"])[:2]
    print(f"radius {radius:g} um")
    for name, (angle, intensity) in zip(("main bow", "first supernumerary"), bows):
        print(f"{name}: {angle:.2f} degrees, intensity {intensity:.4g}")
    if len(sys.argv) > 2:
        draw(sys.argv[2], curves)


if __name__ == "__main__":
    main()
