-- Tidewater chandlery: the tables of the order and stock system.
-- Run once on an empty database; migration.sql carries it forward from there.
-- Monetary amounts are in the order's currency, never converted (€, £, kr).

create schema chandlery;
set search_path to chandlery;

/* ------------------------------------------------------------------
   Parties
   ------------------------------------------------------------------ */

create table country (
    code        char(2)      primary key,
    name        varchar(80)  not null unique,
    currency    char(3)      not null,
    vat_percent numeric(5,2) not null default 0 check (vat_percent between 0 and 40)
);

create table party (
    party_id    bigint generated always as identity primary key,
    kind        varchar(8)   not null check (kind in ('customer', 'supplier', 'both')),
    name        varchar(200) not null,
    tax_number  varchar(32),
    country     char(2)      not null references country (code),
    blocked     boolean      not null default false,
    created_at  timestamp    not null default current_timestamp
);

create unique index party_tax_number on party (country, tax_number)
    where tax_number is not null;

create table address (
    address_id  bigint generated always as identity primary key,
    party_id    bigint       not null references party on delete cascade,
    purpose     varchar(10)  not null check (purpose in ('invoice', 'delivery', 'office')),
    line_1      varchar(120) not null,
    line_2      varchar(120),
    postcode    varchar(16),
    town        varchar(80)  not null,   -- as written on the spot: Göteborg, Ålesund, A Coruña
    country     char(2)      not null references country (code)
);

/* ------------------------------------------------------------------
   Goods
   ------------------------------------------------------------------ */

create table article (
    article_id   bigint generated always as identity primary key,
    sku          varchar(20)  not null unique,
    description  varchar(240) not null,
    unit         varchar(6)   not null default 'pcs',
    weight_kg    numeric(9,3) check (weight_kg >= 0),
    discontinued date
);

create table article_price (
    article_id  bigint        not null references article,
    currency    char(3)       not null,
    valid_from  date          not null,
    valid_to    date          not null default date '9999-12-31',
    amount      numeric(12,4) not null check (amount > 0),
    primary key (article_id, currency, valid_from),
    check (valid_from < valid_to)
);

create table warehouse (
    warehouse_id smallint    primary key,
    name         varchar(60) not null unique,
    country      char(2)     not null references country (code)
);

create table stock (
    warehouse_id smallint      not null references warehouse,
    article_id   bigint        not null references article,
    bin          varchar(12)   not null,
    quantity     numeric(12,3) not null default 0,
    reserved     numeric(12,3) not null default 0,
    primary key (warehouse_id, article_id, bin),
    check (reserved between 0 and quantity)
);

/* ------------------------------------------------------------------
   Orders
   ------------------------------------------------------------------ */

create table sales_order (
    order_id     bigint generated always as identity primary key,
    customer_id  bigint      not null references party,
    deliver_to   bigint      not null references address,
    vessel       varchar(80),
    currency     char(3)     not null,
    status       varchar(10) not null default 'open'
                 check (status in ('open', 'picked', 'shipped', 'billed', 'void')),
    ordered_on   date        not null default current_date,
    wanted_by    date,
    check (wanted_by is null or wanted_by >= ordered_on)
);

create table sales_order_line (
    order_id    bigint        not null references sales_order on delete cascade,
    line_no     smallint      not null,
    article_id  bigint        not null references article,
    quantity    numeric(12,3) not null check (quantity > 0),
    unit_price  numeric(12,4) not null,
    discount    numeric(5,2)  not null default 0 check (discount between 0 and 100),
    primary key (order_id, line_no)
);

create index sales_order_by_customer on sales_order (customer_id, ordered_on desc);
create index sales_order_open on sales_order (wanted_by) where status = 'open';

create view open_order_value as
select o.order_id,
       o.customer_id,
       o.currency,
       sum(l.quantity * l.unit_price * (1 - l.discount / 100)) as net_value
from   sales_order o
join   sales_order_line l on l.order_id = o.order_id
where  o.status in ('open', 'picked')
group  by o.order_id, o.customer_id, o.currency;

comment on view open_order_value is 'What is ordered and not shipped yet, without tax';
