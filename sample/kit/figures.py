"""The figures of Harbour Logistics: made up, but they add up. The seed is fixed, so every run has the same ones."""

import math
import random

MONTHS = ["Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"]
QUARTERS = ["Q1", "Q2", "Q3", "Q4"]
TERMINALS = ["Nordhafen", "Westkai", "Porto Sul", "Baltic Gate", "Quai Émile", "Yokohama Pier 7"]

_SEASON = [0.91, 0.90, 0.98, 0.99, 1.02, 1.04, 1.01, 0.97, 1.05, 1.08, 1.04, 1.01]


def _rounded(value, step):
    return int(round(value / step) * step)


class Figures:
    def __init__(self):
        chance = random.Random(2026)

        def series(base, growth, swing=0.02, step=10):
            return [
                _rounded(base * _SEASON[m] * (1 + growth * m / 11) * (1 + swing * (chance.random() - 0.5)), step)
                for m in range(12)
            ]

        # Revenue in thousand euro by month.
        self.segments = {
            "Container handling": series(4120, 0.10),
            "Warehousing": series(2480, 0.06),
            "Road freight": series(1890, 0.14, 0.04),
            "Customs & services": series(940, 0.05),
            "Cold chain": series(620, 0.38, 0.05),
        }
        self.revenue = [sum(months) for months in zip(*self.segments.values())]
        self.margin = [
            round(0.172 + 0.018 * m / 11 + 0.006 * math.sin(m * 1.1) + 0.004 * (chance.random() - 0.5), 4)
            for m in range(12)
        ]
        self.trend = {
            "2024": [_rounded(v * 0.80 * (1 + 0.03 * (chance.random() - 0.5)), 10) for v in self.revenue],
            "2025": [_rounded(v * 0.89 * (1 + 0.03 * (chance.random() - 0.5)), 10) for v in self.revenue],
            "2026": self.revenue,
        }

        # Containers by terminal, in TEU.
        self.throughput = {
            name: (before, now)
            for name, before, now in zip(
                TERMINALS,
                [418_300, 352_700, 287_900, 241_600, 198_400, 166_200],
                [441_800, 371_200, 329_400, 238_900, 221_700, 203_500],
            )
        }
        self.utilisation = dict(zip(TERMINALS, [0.87, 0.81, 0.92, 0.68, 0.77, 0.84]))
        self.turnaround = dict(zip(TERMINALS, [19.5, 21.0, 17.2, 24.8, 20.3, 15.9]))
        self.flows = {
            "Import": series(58_600, 0.07, step=100),
            "Export": series(47_300, 0.11, step=100),
            "Transshipment": series(31_200, 0.21, 0.05, step=100),
        }
        self.occupancy = {
            name: [
                min(0.985, round(self.utilisation[name] * _SEASON[m] * (1 + 0.05 * (chance.random() - 0.5)), 3))
                for m in range(12)
            ]
            for name in TERMINALS
        }

        # Vessel calls: size in TEU and crane moves an hour.
        self.calls = {
            "Gantry berths": [
                (size, round(21 + size / 720 + 5 * (chance.random() - 0.5), 1)) for size in range(2400, 15_000, 620)
            ],
            "Mobile cranes": [
                (size, round(14 + size / 1150 + 4 * (chance.random() - 0.5), 1)) for size in range(900, 8_200, 480)
            ],
        }

        self.fleet = [
            # Depot, trucks, km a month, litres for 100 km, on time, electric
            ("Hamburg", 84, 11_850, 27.4, 0.962, 0.21),
            ("Rotterdam", 96, 12_400, 26.9, 0.971, 0.28),
            ("Gdańsk", 52, 13_100, 28.8, 0.948, 0.08),
            ("Le Havre", 47, 10_700, 27.9, 0.955, 0.15),
            ("Leixões", 38, 9_950, 29.3, 0.939, 0.05),
            ("Yokohama", 29, 6_400, 24.1, 0.984, 0.41),
        ]
        self.service = {
            "Customers 2026": [8.7, 9.1, 8.2, 7.9, 8.8, 8.4],
            "Customers 2025": [8.1, 8.6, 8.0, 7.1, 8.3, 7.6],
        }
        self.service_topics = ["Reliability", "Speed", "Price", "Reporting", "Care of goods", "Carbon footprint"]

        spent = sum(r * (1 - m) for r, m in zip(self.revenue, self.margin))
        shares = {"Personnel": 0.427, "Fuel and energy": 0.178, "Leases and berths": 0.152, "Equipment": 0.105,
                  "Subcontractors": 0.093}
        self.costs = {name: _rounded(spent * share, 10) for name, share in shares.items()}
        self.costs["Other"] = _rounded(spent, 10) - sum(self.costs.values())
        self.bridge = [("Opening cash", 18_400), ("Operations", 14_950), ("Investment", -9_870),
                       ("Financing", -3_120), ("Currency", 410)]
        self.shares = self._share_prices(chance)
        self.quarters = [sum(self.revenue[3 * q:3 * q + 3]) for q in range(4)]
        self.cafe = [round(v * 0.0042, 1) for v in self.quarters]
        self.yokohama = {
            "横浜": series(16_900, 0.19, 0.03, step=100),
            "神戸": series(9_400, 0.12, 0.03, step=100),
        }
        total = sum(self.revenue)
        self.outlook = [_rounded(total / 12 * _SEASON[m] * 1.07 * (1 + 0.05 * m / 11), 10) for m in range(12)]

    @staticmethod
    def _share_prices(chance):
        weeks, close = [], 31.4
        for week in range(26):
            close += 0.2 + 2.6 * (chance.random() - 0.5)
            high = close + 0.6 + 1.3 * chance.random()
            low = close - 0.35 - 0.9 * chance.random()
            weeks.append((week, round(high, 2), round(low, 2), round(close, 2)))
        return weeks

    @property
    def total_revenue(self):
        return sum(self.revenue)

    @property
    def growth(self):
        return self.total_revenue / sum(self.trend["2025"]) - 1

    @property
    def average_margin(self):
        return sum(r * m for r, m in zip(self.revenue, self.margin)) / self.total_revenue

    @property
    def total_teu(self):
        return sum(now for _, now in self.throughput.values())

    @property
    def teu_growth(self):
        return self.total_teu / sum(before for before, _ in self.throughput.values()) - 1

    @property
    def on_time(self):
        trucks = sum(row[1] for row in self.fleet)
        return sum(row[1] * row[4] for row in self.fleet) / trucks
