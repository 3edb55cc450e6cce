create table &&SCHEMA.orders (
    id int not null primary key,
    placed_at datetime -- in the time zone of &&SCHEMA
);
