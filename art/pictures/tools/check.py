"""Checks of the map pictures in data/: run by art/render after rendering."""
import numpy as np
from iso import *


def main():
    return 0
