#!/usr/bin/env python3
"""Makes the tables of reference values beside it anew with mpmath, or holds them against what it finds.

  make_reference.py FILE      prints the table of that name with its values calculated anew
  make_reference.py --check   tells for each table the largest difference, relative to the modulus

The rows (sphere, angle, term) and the comments are those of the table; only the values are calculated. The inputs of the
Mie tables are the doubles nearest to what is printed, those of the Debye table what is printed. Bessel functions go upward
with as many further digits as the recurrence loses, so that nothing here shares a method with the program.
"""
import pathlib
import sys
from functools import lru_cache

from mpmath import cos, fabs, floor, log10, mp, mpc, mpf, nstr, pi, sin

here = pathlib.Path(__file__).parent
DIGITS = 60


def riccati_bessel(z, n_max):
    """psi_n, chi_n for n = 0..n_max, and their derivatives; upward."""
    psi, chi = [sin(z), sin(z) / z - cos(z)], [cos(z), cos(z) / z + sin(z)]
    for n in range(1, n_max):
        psi.append((2 * n + 1) / z * psi[n] - psi[n - 1])
        chi.append((2 * n + 1) / z * chi[n] - chi[n - 1])
    slope = lambda f: [None] + [f[n - 1] - n / z * f[n] for n in range(1, n_max + 1)]
    return psi, chi, slope(psi), slope(chi)


def enough_digits(z, n_max):
    """Upward, psi_n(z) loses what chi_n gains: about 2 n log10(2n/(e |z|)) digits beyond n = |z|, and exp(2 Im z)."""
    size = float(abs(z))
    lost = 2 * n_max * max(0.0, float(log10(2 * n_max / (2.718 * size)))) if size < n_max else 0
    return int(DIGITS + 40 + lost + 2 * abs(float(mpc(z).imag)) / 2.3)


def terms(x, margin):
    return int(floor(x + 4 * x ** mpf("0.3333") + margin + mpf(1) / 2))


@lru_cache(maxsize=None)
def whole_sphere(x_text, re_text, im_text, short_start):
    """a_n, b_n for n = 1..N. With short_start D_n begins at 0 twenty rows above, and N has a margin of 20."""
    x, m = mpf(float(x_text)), mpc(float(re_text), float(im_text))
    N = terms(x, 20) if short_start else terms(x, 20) + 60 + int(4 * float(x) ** (1 / 3))
    mp.dps = enough_digits(x, N)
    x, m = mpf(float(x_text)), mpc(float(re_text), float(im_text))
    y = m * x
    start = int(max(N, abs(y))) + (20 if short_start else 400 + int(abs(y)) // 5)
    D = [mpc(0)] * (start + 1)
    for n in range(start, 1, -1):
        D[n - 1] = n / y - 1 / (D[n] + n / y)
    psi, chi, _, _ = riccati_bessel(x, N)
    a, b = [mpc(0)], [mpc(0)]
    for n in range(1, N + 1):
        xi, xi1 = psi[n] - 1j * chi[n], psi[n - 1] - 1j * chi[n - 1]
        A, B = D[n] / m + n / x, m * D[n] + n / x
        a.append((A * psi[n] - psi[n - 1]) / (A * xi - xi1))
        b.append((B * psi[n] - psi[n - 1]) / (B * xi - xi1))
    mp.dps = DIGITS
    return [+c for c in a], [+c for c in b]


@lru_cache(maxsize=None)
def debye_factors(x_text, re_text, im_text):
    """For a_n and b_n: R22, R11 and T of every partial wave; outgoing waves psi - i chi, incoming ones psi + i chi."""
    x, m = mpf(x_text), mpc(re_text, im_text)
    N = terms(x, 2)
    mp.dps = max(enough_digits(x, N), enough_digits(m * x, N)) + 60
    x, m = mpf(x_text), mpc(re_text, im_text)
    out, inn = {}, {}
    for z in (x, m * x):
        psi, chi, dpsi, dchi = riccati_bessel(z, N)
        out[z] = ([p - 1j * c for p, c in zip(psi, chi)], [None] + [p - 1j * c for p, c in zip(dpsi[1:], dchi[1:])])
        inn[z] = ([p + 1j * c for p, c in zip(psi, chi)], [None] + [p + 1j * c for p, c in zip(dpsi[1:], dchi[1:])])
    y = m * x
    found = []
    for alpha, beta in ((1, m), (m, 1)):  # a_n: the tangential fields of E waves; b_n: those of H waves
        rows = [None]
        for n in range(1, N + 1):
            O = lambda f, g: alpha * f[0][n] * g[1][n] - beta * f[1][n] * g[0][n]
            d = O(out[x], inn[y])
            R11, R22 = -O(out[x], out[y]) / d, -O(inn[x], inn[y]) / d
            rows.append((R22, R11, R11 * R22 - O(inn[x], out[y]) / d))
        found.append(rows)
    return found


def debye_waves(x_text, re_text, im_text, p):
    waves = []
    for rows in debye_factors(x_text, re_text, im_text):
        half = mpf(1) / 2
        term = lambda r: half * (1 - r[0]) if p == 0 else -half * r[2] * r[1] ** (p - 1)
        waves.append([mpc(0)] + [term(r) for r in rows[1:]])
    mp.dps = DIGITS
    return waves


def amplitudes(a, b, degrees):
    mu = cos(mpf(float(degrees)) * pi / 180)
    S1 = S2 = mpc(0)
    pi0, pi1 = mpf(0), mpf(1)
    for n in range(1, len(a)):
        tau = n * mu * pi1 - (n + 1) * pi0
        weight = mpf(2 * n + 1) / (n * (n + 1))
        S1 += weight * (a[n] * pi1 + b[n] * tau)
        S2 += weight * (a[n] * tau + b[n] * pi1)
        pi0, pi1 = pi1, ((2 * n + 1) * mu * pi1 - (n + 1) * pi0) / n
    return [S1.real, S1.imag, S2.real, S2.imag]


def efficiencies(a, b, x):
    """Qext, Qsca, Qabs, Qback, g."""
    N = len(a) - 1
    ext = sum((2 * n + 1) * (a[n] + b[n]).real for n in range(1, N + 1))
    sca = sum((2 * n + 1) * (abs(a[n]) ** 2 + abs(b[n]) ** 2) for n in range(1, N + 1))
    back = sum((2 * n + 1) * (-1) ** n * (a[n] - b[n]) for n in range(1, N + 1))
    dot = lambda u, v: (u * v.conjugate()).real
    g = sum(mpf(2 * n + 1) / (n * (n + 1)) * dot(a[n], b[n]) for n in range(1, N + 1))
    g += sum(mpf(n * (n + 2)) / (n + 1) * (dot(a[n], a[n + 1]) + dot(b[n], b[n + 1])) for n in range(1, N))
    Qext, Qsca = 2 * ext / x**2, 2 * sca / x**2
    return [Qext, Qsca, Qext - Qsca, abs(back) ** 2 / 4 / (pi * x**2), 2 * g / sca]


def mie_row(cells):
    x = mpf(float(cells[0]))
    full = efficiencies(*whole_sphere(*cells[:3], False), x)
    short = efficiencies(*whole_sphere(*cells[:3], True), x)
    return full + [short[0], short[1], short[3], short[4]], 3


def mie_amplitude_row(cells):
    rows = [amplitudes(*whole_sphere(*cells[:3], start), cells[3]) for start in (False, True)]
    return rows[0] + rows[1], 4


def debye_row(cells):
    return amplitudes(*debye_waves(*cells[:3], int(cells[3])), cells[4]), 5


TABLES = {"reference_mie.csv": mie_row, "reference_mie_amplitudes.csv": mie_amplitude_row, "reference_debye.csv": debye_row}


def rows_of(name):
    heading = True
    for line in (here / name).read_text().splitlines():
        comment = line.startswith("#") or heading
        heading = heading and line.startswith("#")
        if comment:
            yield line, None, None
            continue
        cells = line.split(",")
        values, keys = TABLES[name](cells)
        yield line, cells[:keys], values


def check():
    for name in TABLES:
        worst, where = mpf(0), ""
        for line, keys, values in rows_of(name):
            if values is None:
                continue
            kept = [mpf(c) for c in line.split(",")[len(keys):]]
            scale = max(fabs(v) for v in kept) if "amplitudes" in name or "debye" in name else None
            for a, b in zip(values, kept):
                off = fabs(a - b) / (scale or max(fabs(b), mpf(10) ** -15))
                if off > worst:
                    worst, where = off, ",".join(keys)
        print(f"{name}: largest difference {nstr(worst, 2)} at {where}", flush=True)


if len(sys.argv) == 2 and sys.argv[1] == "--check":
    check()
elif len(sys.argv) == 2 and sys.argv[1] in TABLES:
    for line, keys, values in rows_of(sys.argv[1]):
        print(line if values is None else ",".join(keys + [nstr(v, 20) for v in values]))
else:
    sys.exit(__doc__)
